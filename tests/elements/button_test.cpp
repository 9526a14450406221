#include "elements/button.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QTemporaryDir>

#include "support/pictures.h"
#include "support/testwindow.h"

using namespace veneerer;
using test::TestWindow;

namespace {

struct ButtonTest : testing::Test {
  ButtonTest() {
    test::writePicture(folder.filePath("face.bmp"), 4, 4, Qt::red);
    test::writePicture(folder.filePath("face.ico"), 16, 16, Qt::red);
  }
  Picture picture(const char* name) { return pictures.load(folder.filePath(QString::fromLatin1(name))); }

  QTemporaryDir folder;
  PictureStore pictures;
  TestWindow window;
  Button& button = window.Button1[0];
};

}  // namespace

TEST_F(ButtonTest, ACustomShapeNeedsAPictureThatIsNoIcon) {
  button.setButtonShape(3);
  button.setButtonShape(7);
  EXPECT_EQ(button.buttonShape(), 3) << "there is no picture";
  button.setPicture(picture("face.ico"));
  button.setButtonShape(8);
  EXPECT_EQ(button.buttonShape(), 3) << "an icon gives no outline";
  button.setPicture(picture("face.bmp"));
  button.setButtonShape(8);
  EXPECT_EQ(button.buttonShape(), 8);
}

TEST_F(ButtonTest, ShapesAndSizesOutsideTheirRangeAreIgnored) {
  button.setButtonShape(6);
  button.setPictureSize(PictureSize::Fitted);
  for (int value : {-1, 9, 2147483647}) {
    button.setButtonShape(value);
    button.setPictureSize(static_cast<PictureSize>(value));
    EXPECT_EQ(button.refusal(Property::ButtonShape, value), QString()) << "silently";
  }
  button.setPictureSize(static_cast<PictureSize>(5));
  EXPECT_EQ(button.buttonShape(), 6);
  EXPECT_EQ(button.pictureSize(), PictureSize::Fitted);
}

TEST_F(ButtonTest, ACustomShapeFixesThePictureSize) {
  button.setPicture(picture("face.bmp"));
  button.setPictureSize(PictureSize::Side24);
  button.setButtonShape(7);
  button.setPictureSize(PictureSize::Stretched);
  EXPECT_EQ(button.pictureSize(), PictureSize::Side24);
}

TEST_F(ButtonTest, RefusalsThatHangOnAnotherProperty) {
  EXPECT_FALSE(button.set(Property::Value, 1)) << "a command button has no value";
  EXPECT_FALSE(button.set(Property::CustomClick, true)) << "the shape isn't custom";
  button.set(Property::PictureAlign, static_cast<int>(PictureAlign::BottomCenter));
  EXPECT_FALSE(button.set(Property::CaptionAlign, 0)) << "a picture at top or bottom centres the caption";
  button.set(Property::PictureAlign, static_cast<int>(PictureAlign::RightOfCaption));
  EXPECT_TRUE(button.set(Property::CaptionAlign, 0));
}

TEST_F(ButtonTest, OptionButtonsOfOneContainerAreAGroup) {
  for (int i = 0; i < 3; ++i) {
    window.Button1[i].set(Property::Mode, static_cast<int>(ButtonMode::OptionButton));
    window.Button1[i].setContainer(i < 2 ? static_cast<Element&>(*window.Picture1) : window);
    window.Button1[i].set(Property::Value, 1);
  }
  EXPECT_EQ(window.Button1[0].as<std::int32_t>(Property::Value), 0);
  EXPECT_EQ(window.Button1[1].as<std::int32_t>(Property::Value), 1);
  EXPECT_EQ(window.Button1[2].as<std::int32_t>(Property::Value), 1) << "another container, another group";
}
