// A picture file that is dropped is the answer of the file dialog there.
#include <gtest/gtest.h>

#include "designer/restoredstate.h"
#include "designer/skinfixture.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

class Dropping : public test::SkinFixture {
protected:
  void SetUp() override {
    start();
    test::writePicture(picture, 8, 8, Qt::red);
  }
  const QString picture = root.path() + QStringLiteral("/dropped.BMP");
};

TEST_F(Dropping, IsTheChoiceOfTheButtonOrScreenThere) {
  Button& button = form1().lvButtons_H1[2];
  const test::RestoredState before(state());
  designer->drop(button, picture);
  EXPECT_EQ(state().names.of(button)->text(), QStringLiteral("\\dropped.BMP"));
  EXPECT_EQ(button.picture().path(), picture);
  EXPECT_EQ(button.pictureSize(), PictureSize::Stretched);
  designer->drop(form1().Label4[0], picture);
  designer->drop(state().form5.Image1[4], picture);
  EXPECT_EQ(state().names.ImageName[4].text(), QStringLiteral("\\dropped.BMP"));
  EXPECT_EQ(form1().Picture1[4].picture().path(), picture);
  EXPECT_EQ(designer->history().stack().count(), 3);
  EXPECT_TRUE(world.dialogs.filters.isEmpty()) << "no dialog opened";
  designer->history().undoAll();
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");
}

TEST_F(Dropping, AFileOfAnotherKindChangesNothingAndAnswersNoLaterDialog) {
  const test::RestoredState before(state());
  const QString text = root.path() + QStringLiteral("/dropped.txt");
  EXPECT_FALSE(designer->takesPicture(form1().lvButtons_H1[2], text));
  designer->drop(form1().lvButtons_H1[2], text);
  const QString frame = root.path() + QStringLiteral("/frame.gif");
  EXPECT_TRUE(designer->takesPicture(*state().form5.Image16, frame));
  EXPECT_FALSE(designer->takesPicture(*state().form5.Image16, picture));
  // No frame is chosen, so nothing asks for it.
  designer->drop(*state().form5.Image16, frame);
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");
  designer->press(form1().lvButtons_H1[2], 0, 0, MouseButton::Right);
  EXPECT_EQ(world.dialogs.filters.size(), 1);
}

}  // namespace
}  // namespace veneerer
