// Colours turned and replaced, one by one.
#include "recolouring/colourmap.h"

#include <gtest/gtest.h>

#include <QColor>
#include <random>

namespace veneerer {
namespace {

constexpr QRgb kRed = qRgb(255, 0, 0);

TEST(ColourTurn, GoesAroundTheCircleAndTowardsGreyBlackAndWhite) {
  const struct {
    QRgb colour;
    ColourTurn turn;
    QRgb expected;
  } cases[] = {
      {kRed, {.hue = 120}, qRgb(0, 255, 0)},
      {kRed, {.hue = -120}, qRgb(0, 0, 255)},
      {kRed, {.hue = 60}, qRgb(255, 255, 0)},
      {qRgb(10, 200, 90), {.hue = 180}, qRgb(200, 10, 120)},
      {kRed, {.saturation = -100}, qRgb(128, 128, 128)},
      {kRed, {.saturation = 100}, kRed},
      {qRgb(140, 115, 115), {.saturation = 100}, qRgb(153, 103, 103)},
      {kRed, {.lightness = -100}, qRgb(0, 0, 0)},
      {kRed, {.lightness = 100}, qRgb(255, 255, 255)},
      {qRgb(100, 100, 100), {.lightness = -50}, qRgb(50, 50, 50)},
      {qRgba(255, 0, 0, 7), {.hue = 120}, qRgba(0, 255, 0, 7)},
  };
  for (const auto& each : cases)
    EXPECT_EQ(QColor::fromRgba(turned(each.colour, each.turn)).name(QColor::HexArgb).toStdString(),
              QColor::fromRgba(each.expected).name(QColor::HexArgb).toStdString());
}

TEST(ColourTurn, LeavesEveryGreyAloneAndComesBack) {
  for (int grey = 0; grey < 256; ++grey)
    EXPECT_EQ(turned(qRgb(grey, grey, grey), {.hue = 77, .saturation = 60}), qRgb(grey, grey, grey));
  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i) {
    const QRgb colour = static_cast<QRgb>(random()) | 0xFF000000U;
    EXPECT_EQ(turned(colour, {}), colour);
    const QRgb back = turned(turned(colour, {.hue = 120}), {.hue = 240});
    EXPECT_EQ(back, colour) << "a third of the circle changes the parts' places alone";
  }
}

TEST(ColourMap, LeavesAloneWhatLooksTheSame) {
  ColourMap map;
  map.turn.saturation = 50;
  const Colour system(static_cast<std::int32_t>(0x80000005U));
  EXPECT_EQ(map.of(system), system);
  const Colour odd(0x01808080);
  EXPECT_EQ(map.of(odd), odd) << "a grey keeps what stands above its 24 bits";
  map.turn = {.hue = 360};
  EXPECT_TRUE(map.isNothing());
  EXPECT_EQ(map.of(Colour(0x010000FF)), Colour(0x010000FF));
}

TEST(ColourMap, ReplacesAllAtOnceAndTurnsTheOthers) {
  ColourMap map;
  map.replaced = {{0x0000FF, Colour(0xFF0000)}, {0xFF0000, Colour(0x0000FF)}, {0x123456, Colour(0x123456)}};
  map.turn.hue = 120;
  EXPECT_EQ(map.of(0x0000FF), Colour(0xFF0000)) << "not turned, nor replaced again";
  EXPECT_EQ(map.of(0xFF0000), Colour(0x0000FF));
  EXPECT_EQ(map.of(0x123456), Colour(0x123456)) << "kept from the turn";
  EXPECT_EQ(map.of(0x7F0000FF), Colour(0xFF0000));
  EXPECT_EQ(map.of(0x00FF00), Colour(0xFF0000));
}

}  // namespace
}  // namespace veneerer
