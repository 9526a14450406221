// What the textures of Form5 reach; the choices of Form4 are told by choices_test.cpp.
#include <gtest/gtest.h>

#include "designer/skinfixture.h"

namespace veneerer {
namespace {

class Properties : public test::SkinFixture {
protected:
  Properties() { start(); }
};

TEST_F(Properties, TexturesReachTheCanvasAndTheNames) {
  const QString picture = root.path() + "/back.bmp";
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

  // The grab cuts the panels out of that backdrop, that of the menu without a border.
  form1().Picture2[0].place(15, 30, 60, 45);
  form1().Picture2[0].setBorderStyle(1);
  form1().Picture2[1].setBorderStyle(0);
  designer->click(*form5.Command1);
  const QImage menu(path("images/Menu.bmp"));
  EXPECT_EQ(menu.size(), QSize(4, 3));
  EXPECT_EQ(form1().Picture2[0].picture().path(), path("images/Menu.bmp"));
  EXPECT_EQ(form1().Picture2[0].as<std::int32_t>(Property::BorderStyle), 0);
  EXPECT_EQ(form1().Picture2[1].as<std::int32_t>(Property::BorderStyle), 1);
  EXPECT_EQ(state().names.ImageName[13].text(), path("images/Player.bmp"));
}

}  // namespace
}  // namespace veneerer
