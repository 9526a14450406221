// Pictures that take longer than a frame: the windows go on, and show them once they are there.
#include "ui/picturefetcher.h"

#include <QSignalSpy>

#include "support/hostilepictures.h"
#include "support/pictures.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

constexpr QSize kLarge(6900, 6900);

/// What of a widget is painted while the pixels of a picture are there.
class Paints : public QObject {
public:
  Paints(QWidget& widget, Picture picture) : picture_(std::move(picture)) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && !picture_.shown(QSize(1, 1)).isNull())
      painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion painted;

private:
  Picture picture_;
};

class Fetching : public test::UiFixture {
protected:
  /// A picture whose decoding takes many frames.
  Picture large(const char* name = "large.png") {
    static const QByteArray png = test::flatPng(kLarge);
    test::writeBytes(path(QString::fromLatin1(name)), png);
    return state().pictures.load(path(QString::fromLatin1(name)));
  }
};

TEST_F(Fetching, ALargePictureIsPaintedWhenItIsThere) {
  ImageBox& cover = form1().Image2[0];
  form6().Combo6->select(9);
  QTest::qWait(1);
  const Picture picture = large();
  Paints paints(canvas(), picture);
  cover.setPicture(picture);
  EXPECT_TRUE(picture.shown(kLarge).isNull());
  EXPECT_TRUE(QTest::qWaitFor([&] { return paints.painted.contains(middle(cover)); }, 60'000));
  EXPECT_EQ(canvas().grab().toImage().pixelColor(middle(cover)), QColor(Qt::black));
}

TEST_F(Fetching, IsToldOnceAndOnlyOfWhatCameTooLate) {
  Operator hands(*designer);
  PictureFetcher fetcher(hands);
  QSignalSpy told(&fetcher, &PictureFetcher::fetched);
  const Picture picture = large();
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(picture.shown(kLarge).isNull());
  ASSERT_TRUE(told.wait());
  EXPECT_EQ(told.size(), 1);
  EXPECT_EQ(picture.shown(kLarge).size(), kLarge);
  QTest::qWait(1);
  EXPECT_EQ(told.size(), 1);
}

TEST_F(Fetching, PicturesOutliveWhoFetchesThem) {
  Operator hands(*designer);
  auto fetcher = std::make_unique<PictureFetcher>(hands);
  const Picture one = large("one.png");
  const Picture other = large("other.png");
  EXPECT_TRUE(one.shown(kLarge).isNull());
  EXPECT_TRUE(other.shown(kLarge).isNull());
  fetcher.reset();
  EXPECT_EQ(other.shown(kLarge).size(), kLarge) << "decoded on the spot";
}

TEST_F(Fetching, LeafingLetsPicturesGoButNotThoseOfTheLastScreens) {
  constexpr int kScreens = 12;
  const QByteArray png = test::flatPng(QSize(1600, 1200));
  PictureStore& pictures = state().pictures;
  pictures.fetchWith({});
  for (int entry = 0; entry < kScreens; ++entry) {
    test::writeBytes(path(QString::number(entry)), png);
    form1().Picture1[entry].setPicture(pictures.load(path(QString::number(entry))));
  }
  const auto lookAt = [&](int entry) {
    form6().Combo6->select(entry);
    QTest::qWait(1);
    canvas().grab();
  };
  qint64 most = 0;
  for (int entry = 0; entry < kScreens; ++entry) {
    lookAt(entry);
    most = std::max(most, pictures.decodedBytes());
  }
  const qint64 canvasBytes = 4LL * canvas().sizeHint().width() * canvas().sizeHint().height();
  EXPECT_LE(most, 16 * 1024 * 1024 + 3 * canvasBytes);
  QList<QString> fetched;
  pictures.fetchWith([&](const Picture& picture, const PictureNeed&) { fetched.append(picture.path()); });
  for (const int entry : {kScreens - 2, kScreens - 1, kScreens - 2}) lookAt(entry);
  EXPECT_EQ(fetched, QList<QString>());
  lookAt(1);
  EXPECT_TRUE(fetched.contains(path(QString::number(1)))) << "it was let go, and is asked for again";
}

TEST_F(Fetching, AThumbnailIsDecodedInItsSizeAlone) {
  Operator hands(*designer);
  PictureFetcher fetcher(hands);
  const qint64 before = state().pictures.decodedBytes();
  QFuture<QImage> thumbnail = fetcher.thumbnail(large(), QSize(100, 60));
  EXPECT_EQ(thumbnail.result().size(), QSize(60, 60));
  EXPECT_EQ(state().pictures.decodedBytes(), before);
}

}  // namespace
}  // namespace veneerer
