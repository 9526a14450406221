// The skin-wide choices: which families they show and hide.
#include <gtest/gtest.h>

#include "designer/skinfixture.h"

namespace veneerer {
namespace {

class Properties : public test::SkinFixture {
protected:
  Properties() { start(); }

  template <class T>
  static int shown(const Array<T>& family, int last) {
    int count = 0;
    for (int i = 0; i <= last; ++i) count += family[i].isVisible();
    return count;
  }
};

TEST_F(Properties, CountsOfTracksAndGenres) {
  form4().Combo1->select(6);
  EXPECT_EQ(shown(form1().Label1, 19), 7);
  EXPECT_EQ(shown(form1().aicAlphaImage1, 19), 7);
  form4().Combo7->select(4);
  EXPECT_EQ(shown(form1().Label20, 27), 5);
  EXPECT_EQ(shown(form1().Picture26, 111), 20) << "the thumbnails come up whatever the style";
  form4().Combo5->select(1);
  EXPECT_EQ(shown(form1().Picture20, 27), 5);
  EXPECT_EQ(shown(form1().Picture26, 111), 0);
  form4().Combo5->select(0);
  EXPECT_EQ(shown(form1().Picture20, 27), 0);
  EXPECT_EQ(shown(form1().Label59, 27), 5);
}

TEST_F(Properties, ChoicesOfOneAmongSeveral) {
  for (int row = 0; row < 5; ++row) {
    form4().Combo2->select(row);
    EXPECT_EQ(form1().lvButtons_H3[1].isVisible(), row == 0);
    EXPECT_EQ(form1().Picture13[0].isVisible(), row == 1);
    EXPECT_EQ(form1().Picture13[1].isVisible(), row == 2);
    EXPECT_EQ(form1().lvButtons_H38[26].isVisible(), row == 3);
    EXPECT_EQ(form1().lvButtons_H57[1].isVisible(), row == 4);
  }
  form4().Combo6->select(1);
  EXPECT_FALSE(form1().Label5->isVisible());
  EXPECT_TRUE(form1().lvButtons_H57[2].isVisible());
  // Genre navigation reads the genre style's row, not its own.
  form4().Combo5->select(0);
  form4().Combo11->select(1);
  EXPECT_TRUE(form1().lvButtons_H35[3].isVisible());
  form4().Combo5->select(3);
  EXPECT_TRUE(form1().lvButtons_H35[3].isVisible()) << "nothing changes until the navigation is chosen";
  form4().Combo11->select(1);
  EXPECT_EQ(shown(form1().lvButtons_H35, 30) - shown(form1().lvButtons_H35, 2), 27);
  EXPECT_FALSE(form1().lvButtons_H35[3].isVisible());
}

TEST_F(Properties, ThePlayerKeepsItsPopUpButton) {
  form4().Combo10->select(0);
  EXPECT_FALSE(form1().lvButtons_H2[4].isVisible());
  form4().Combo10->select(3);
  EXPECT_TRUE(form1().lvButtons_H2[4].isVisible());
  EXPECT_TRUE(form1().lvButtons_H2[5].isVisible());
  form4().Combo10->select(0);
  EXPECT_TRUE(form1().lvButtons_H2[5].isVisible()) << "left up until a reload";
  EXPECT_FALSE(form1().lvButtons_H57[3].isVisible());
}

TEST_F(Properties, OtherAlbumsAndTheirNames) {
  form4().Combo12->select(3);
  EXPECT_EQ(shown(form1().Picture14, 9), 4);
  form4().Combo12->select(9);
  EXPECT_EQ(shown(form1().Picture14, 9), 4) << "ten albums does nothing";
  form4().Check10->setValue(1);
  EXPECT_EQ(shown(form1().Label64, 9), 10);
  form4().Check10->setValue(0);
  EXPECT_EQ(shown(form1().Label64, 9), 0);
}

TEST_F(Properties, CoverCounts) {
  form4().Check6->setValue(1);
  form4().Combo4->select(11);
  EXPECT_EQ(state().globals.LastCoverIndex->value(), 11);
  EXPECT_EQ(shown(form1().Image2, 27), 12);
  EXPECT_EQ(shown(form1().Label62, 27), 12);
  form4().Check1->setValue(1);
  EXPECT_EQ(form4().Combo4->list().size(), 50);
  EXPECT_EQ(shown(form1().Image2, 27), 12) << "nothing changes until a row is chosen";
  for (int row : {28, 40}) {
    form4().Combo4->select(row);
    EXPECT_EQ(state().globals.LastCoverIndex->value(), 28) << row;
    EXPECT_EQ(shown(form1().Label9, 28), 29) << row;
    EXPECT_EQ(shown(form1().Image2, 28), 0) << "a list of texts has no pictures";
  }
  form4().Check1->setValue(0);
  EXPECT_EQ(form4().Combo4->list().size(), 13);
  state().globals.LastCoverIndex->setValue(27);
  form4().Check6->setValue(0);
  EXPECT_FALSE(form1().Label62[0].isVisible());
  state().globals.LastCoverIndex->setValue(11);
  form4().Check6->setValue(1);
  EXPECT_TRUE(form1().Label63[12].isVisible()) << "one further than the covers";
  EXPECT_FALSE(form1().Label63[13].isVisible());
  form4().Check7->setValue(1);
  EXPECT_TRUE(form1().ucAniGIF1[28].isVisible());
  state().globals.LastCoverIndex->setValue(2);
  form4().Combo4->setText(QStringLiteral("anything"));
  EXPECT_EQ(shown(form1().Image2, 27), 3);
}

TEST_F(Properties, TheResolutionSizesTheWindowAlone) {
  const float left = form1().Label5->left();
  form4().Text1[0].setText(QStringLiteral("1024"));
  form4().Text1[1].setText(QStringLiteral("none"));
  EXPECT_EQ(form1().width(), 15360);
  EXPECT_EQ(form1().height(), 9500);
  EXPECT_EQ(form1().Label5->left(), left);
  int told = 0;
  for (const char* beyond : {"99999999999", "143165577", "1E300"}) {
    form4().Text1[0].setText(QString::fromLatin1(beyond));
    EXPECT_EQ(form1().width(), 15360);
    EXPECT_EQ(state().notes.texts().size(), ++told) << beyond;
  }
}

TEST_F(Properties, TexturesReachTheCanvasAndTheNames) {
  const QString picture = root.path() + QStringLiteral("/back.bmp");
  QImage(8, 6, QImage::Format_RGB32).save(picture);
  world.dialogs.files << picture << QString() << root.path() << picture << picture;
  Form5& form5 = state().form5;
  designer->click(form5.Image1[12]);
  EXPECT_EQ(form1().Picture1[14].picture().path(), picture);
  EXPECT_EQ(state().names.SearchChoiceName->text().toStdString(), "\\back.bmp");
  designer->click(form5.Image1[0]);
  EXPECT_TRUE(form1().picture().isNull()) << "cancelled";
  designer->click(form5.Image1[0]);
  EXPECT_TRUE(form1().picture().isNull()) << "no picture";
  EXPECT_EQ(world.dialogs.messages.last().title.toStdString(), "Texture Viewer");
  designer->click(form5.Image1[0]);
  EXPECT_EQ(form1().picture(), form1().Picture1[0].picture());
  designer->click(*form5.Image6);
  EXPECT_EQ(world.dialogs.files.size(), 1) << "the menu's thumbnail has no action";

  // The grab cuts the panels out of that backdrop.
  form1().Picture2[0].place(15, 30, 60, 45);
  designer->click(*form5.Command1);
  const QImage menu(path(QStringLiteral("images/Menu.bmp")));
  EXPECT_EQ(menu.size(), QSize(4, 3));
  EXPECT_EQ(form1().Picture2[0].picture().path(), path(QStringLiteral("images/Menu.bmp")));
  EXPECT_EQ(state().names.ImageName[13].text(), path(QStringLiteral("images/Player.bmp")));
}

}  // namespace
}  // namespace veneerer
