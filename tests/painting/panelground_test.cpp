// A panel without a colour of its own shows what it stands on, however deep that lies.
#include <gtest/gtest.h>

#include "elements/colour.h"
#include "support/canvasfixture.h"

namespace veneerer {
namespace {

constexpr Colour kRed = 0x0000FF;
constexpr Colour kBlue = 0xFF0000;

class PanelGround : public test::CanvasFixture {
protected:
  PanelGround() {
    form.setBackColor(kRed);
    put(screen, {0, 0, 100, 100});
    put(panel, screen, {20, 20, 60, 60});
    screen.setBackColor(kBlue);
  }

  QColor middle() {
    QImage image(QSize(100, 100), QImage::Format_RGB32);
    QPainter on(&image);
    painter.paint(on, form, image.rect(), 1.0 / 15, 1.0 / 15);
    return image.pixelColor(50, 50);
  }

  PictureBox& screen = form.Picture1[5];
  PictureBox& panel = form.Picture2[5];
};

TEST_F(PanelGround, IsThatOfTheHolderWhereThePanelIsClear) {
  panel.setBackStyle(BackStyle::Transparent);
  EXPECT_EQ(middle(), QColor(Qt::blue));
  screen.setBackStyle(BackStyle::Transparent);
  EXPECT_EQ(middle(), QColor(Qt::red)) << "a clear screen shows the window";
  panel.setBackStyle(BackStyle::Opaque);
  EXPECT_EQ(middle(), panel.backColor().toQColor());
}

TEST_F(PanelGround, TakesThePanelsBelowButNoTextOfTheScreen) {
  put(form.Picture2[6], screen, {40, 40, 20, 20});
  put(form.Label4[0], screen, {40, 40, 20, 20});
  for (Element* element : std::initializer_list<Element*>{&form.Picture2[6], &form.Label4[0], &panel})
    element->bringToFront();
  form.Picture2[6].setBackColor(kRed);
  form.Label4[0].setOpaque(true);
  panel.setBackStyle(BackStyle::Transparent);
  EXPECT_EQ(middle(), QColor(Qt::red));
  form.Picture2[6].setVisible(false);
  EXPECT_EQ(middle(), QColor(Qt::blue));
}

TEST_F(PanelGround, ThePlaceOfAPictureStandsOutFromDarkAndFromLight) {
  panel.setBackStyle(BackStyle::Veil);
  screen.setBackColor(0x000000);
  const int onDark = middle().lightness();
  EXPECT_GT(onDark, 20);
  put(form.Picture2[6], panel, {10, 10, 40, 40});
  form.Picture2[6].setBackStyle(BackStyle::Veil);
  EXPECT_GT(middle().lightness(), onDark + 10) << "so does one within another";
  form.Picture2[6].setVisible(false);
  screen.setBackColor(0xFFFFFF);
  EXPECT_LT(middle().lightness(), 235);
}

}  // namespace
}  // namespace veneerer
