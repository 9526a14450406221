// What buttons refuse, told as notes.
#include "designer/skinfixture.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

constexpr char kPictureFirst[] = "The Picture Property must be assigned first and must be a bitmap or JPEG.";
constexpr char kFixedSize[] = "The picture size cannot be changed for Shaped buttons";

class Refusals : public test::SkinFixture {
protected:
  Refusals() {
    test::writePicture(path(QStringLiteral("images/face.bmp")), 8, 8, Qt::red);
    test::writePicture(path(QStringLiteral("images/face.ico")), 16, 16, Qt::red);
  }
  QStringList notes() { return state().notes.texts(); }
  Form6& form6() { return state().form6; }

  void choosePicture(Element& button, const char* name) {
    world.dialogs.files.enqueue(path(QString::fromLatin1(name)));
    designer->press(button, 0, 0, MouseButton::Right);
  }
  QStringList listOf(const char* text) { return {QString::fromLatin1(text)}; }
};

TEST_F(Refusals, AreNotesAndNoBoxes) {
  start();
  const auto boxes = world.dialogs.messages.size();
  designer->click(form1().lvButtons_H6[0]);
  EXPECT_EQ(notes(), QStringList());
  form6().Combo1->select(7);
  EXPECT_EQ(notes(), listOf(kPictureFirst));
  EXPECT_EQ(form1().lvButtons_H6[0].buttonShape(), 0);
  form6().Combo1->select(8);
  EXPECT_EQ(notes().size(), 2) << "a second try is told again";
  EXPECT_EQ(world.dialogs.messages.size(), boxes);
}

TEST_F(Refusals, ACommandOnAWholeFamilyTellsOnce) {
  start();
  designer->click(form1().lvButtons_H6[0]);
  choosePicture(form1().lvButtons_H6[0], "images/face.bmp");
  form6().Combo1->select(7);
  ASSERT_EQ(form1().lvButtons_H6[0].buttonShape(), 7);
  designer->click(*form6().Command3);
  EXPECT_EQ(notes(), listOf(kPictureFirst));
}

TEST_F(Refusals, AnIconIsTakenWithARemarkInOneLine) {
  start();
  Button& button = form1().lvButtons_H6[0];
  choosePicture(button, "images/face.bmp");
  button.setButtonShape(8);
  choosePicture(button, "images/face.ico");
  EXPECT_TRUE(button.picture().isIcon());
  EXPECT_EQ(button.buttonShape(), 0);
  EXPECT_EQ(notes(), listOf("Icons cannot be used for custom buttons. Only use bitmaps or JPEGs. "
                            "Button was changed to Rectangular shaped."));
}

TEST_F(Refusals, OnlyWhatWasAskedForIsTold) {
  start();
  Button& key = form1().lvButtons_H6[0];
  choosePicture(key, "images/face.bmp");
  designer->click(key);
  form6().Combo1->select(7);
  key.setPicture(Picture());
  form6().Text3[0].setText(QStringLiteral("700"));
  EXPECT_EQ(key.buttonShape(), 0) << "the shape didn't come back";
  EXPECT_EQ(notes(), QStringList()) << "but a size was typed";

  Button& menu = form1().lvButtons_H1[0];
  choosePicture(menu, "images/face.bmp");
  menu.setButtonShape(7);
  designer->click(menu);
  EXPECT_EQ(notes(), QStringList()) << "a click only selects";
  form6().Text3[0].setText(QStringLiteral("900"));
  EXPECT_EQ(notes(), listOf(kFixedSize));
}

TEST_F(Refusals, NoneIsToldOfFilesThatAreLoaded) {
  start();
  designer->save();
  // The third button of these keys: a custom shape, and no picture to cut it from.
  Button& key = form1().lvButtons_H6[0];
  key.setPicture(state().pictures.load(path(QStringLiteral("images/face.bmp"))));
  key.setButtonShape(7);
  designer->save();
  key.setButtonShape(0);
  key.setPicture(Picture());
  designer->reload(QStringLiteral("S"));
  EXPECT_EQ(key.buttonShape(), 0);
  EXPECT_EQ(notes(), QStringList());
  key.setButtonShape(7);
  EXPECT_EQ(notes(), listOf(kPictureFirst)) << "afterwards they are told again";
}

}  // namespace
}  // namespace veneerer
