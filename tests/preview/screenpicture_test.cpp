// Screens that are looked at without being shown.
#include "preview/screenpicture.h"

#include <QMap>
#include <cstdlib>

#include "canvas/destinations.h"
#include "canvas/screens.h"
#include "elements/printable.h"
#include "preview/previewfixture.h"
#include "preview/screenlinks.h"
#include "preview/screensheet.h"

namespace veneerer {
namespace {

constexpr int kScreens = static_cast<int>(kScreenEntries.size());

class ScreenPicture : public test::PreviewFixture {
protected:
  QImage seen() { return canvasPicture(state.form1, screen, painter); }
  QImage lookedAt(int entry) { return screenPicture(state, screen, painter, entry); }

  CanvasPainter painter;
};

TEST_F(ScreenPicture, IsWhatChoosingTheScreenWouldShow) {
  // Two screens stay shown behind the others; a button on one of them is hidden.
  state.form4.Check9->setValue(1);
  state.form4.Check12->setValue(1);
  state.form1.lvButtons_H37[0].setVisible(false);
  showScreen(state, 9);
  for (int entry = 0; entry < kScreens; ++entry) {
    const QImage picture = lookedAt(entry);
    showScreen(state, entry);
    EXPECT_TRUE(picture == seen()) << entry;
  }
}

TEST_F(ScreenPicture, InSmallLooksLikeTheWholeReduced) {
  for (const int entry : {0, 4, 9}) {
    const QImage whole = lookedAt(entry);
    const QImage small = screenSketch(state, screen, painter, entry, 200);
    ASSERT_EQ(small.size(), reducedTo(whole.size(), 200));
    const QImage expected = whole.scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    qint64 apart = 0;
    for (int y = 0; y < small.height(); ++y)
      for (int x = 0; x < small.width(); ++x)
        apart += std::abs(qGray(small.pixel(x, y)) - qGray(expected.pixel(x, y)));
    EXPECT_LT(apart, 6 * qint64(small.width()) * small.height()) << "of 255 a pixel, entry " << entry;
  }
  EXPECT_EQ(screenSketch(state, screen, painter, 0, 9000).size(), seen().size()) << "none is enlarged";
}

TEST_F(ScreenPicture, ChangesNothing) {
  showScreen(state, 4);
  const QImage before = seen();
  int changes = 0;
  const Attachment watching = state.board.watch([&](const Change&) { ++changes; });
  for (int entry = 0; entry < kScreens; ++entry) lookedAt(entry);
  screenSheet(state, screen);
  EXPECT_EQ(changes, 0);
  EXPECT_TRUE(isScreenShown(state, 4));
  EXPECT_TRUE(seen() == before);
}

TEST_F(ScreenPicture, OfTheSheetStandsInItsRowAndColumn) {
  for (int i = 0; i < 30; ++i) state.form1.Picture1[i].setBackColor(0x0000FF);
  PictureBox& queue = state.form1.Picture1[4];
  while (!queue.children().empty()) queue.children().front()->setContainer(*state.form1.Picture23);
  const QImage sheet = screenSheet(state, screen);
  const QSize canvas = seen().size();
  const double scale = double(kMostSheetSide) / canvas.width();
  EXPECT_EQ(sheet.width(), 16 + 8 * (kMostSheetSide + 16));
  // The Queue Screen is the fifth of the first row.
  const QPointF middle((queue.left() + queue.width() / 2) / 15, (queue.top() + queue.height() / 2) / 15);
  EXPECT_EQ(sheet.pixelColor((QPointF(16 + 4 * (kMostSheetSide + 16), 16) + middle * scale).toPoint()),
            QColor(Qt::red));
}

/// Tells the captions that lead to each screen.
QMap<int, QStringList> captionsByScreen(const std::vector<ScreenLink>& links) {
  QMap<int, QStringList> captions;
  for (const ScreenLink& link : links) captions[link.entry] << link.caption;
  return captions;
}

TEST_F(ScreenPicture, HasLinksWhereTheMenusCaptionsSayTheyLead) {
  const QMap<int, QStringList> onMain = captionsByScreen(screenLinks(state, screen, 0));
  EXPECT_EQ(onMain, (QMap<int, QStringList>{{1, {"History"}},
                                            {2, {"Top 20"}},
                                            {3, {"Search"}},
                                            {4, {"Queue"}},
                                            {5, {"Options"}},
                                            {6, {"Decades"}},
                                            {7, {"Playlist"}},
                                            {8, {"Now Playing"}},
                                            {9, {"Albums"}},
                                            {13, {"Genres"}},
                                            {23, {"Request Track"}},
                                            {24, {"My V-Quill"}},
                                            {27, {"Collections"}},
                                            {31, {"Pop Up Menu"}}}));
  QMap<int, QStringList> onPopUp = captionsByScreen(screenLinks(state, screen, 31));
  EXPECT_EQ(onPopUp.take(0), QStringList("Close"));
  EXPECT_EQ(onPopUp.take(31), QStringList("Pop Up Menu")) << "of the main menu beside it";
  for (auto at = onPopUp.begin(); at != onPopUp.end(); ++at)
    EXPECT_EQ(*at, onMain[at.key()] + onMain[at.key()]) << at.key();
}

TEST_F(ScreenPicture, HasNoLinkWhereItsButtonCantBeClicked) {
  Form1& form = state.form1;
  const auto leads = [&](int to) { return captionsByScreen(screenLinks(state, screen, 4)).contains(to); };
  ASSERT_TRUE(leads(1) && leads(3) && leads(5));
  form.lvButtons_H1[0].setLeft(-9000);
  form.lvButtons_H1[1].setWidth(0);
  EXPECT_FALSE(leads(1) || leads(3));
  EXPECT_TRUE(leads(5));
  form.Picture1[4].place(0, 0, form.width(), form.height());
  EXPECT_TRUE(screenLinks(state, screen, 4).empty()) << "the screen covers the menu";
  for (const ScreenLink& link : screenLinks(state, screen, 7))
    EXPECT_TRUE(QRectF(0, 0, 1, 1).contains(link.place)) << link.caption.toStdString();
}

}  // namespace
}  // namespace veneerer
