#include "tools/resizer.h"

#include <gtest/gtest.h>

#include <limits>

#include "elements/button.h"
#include "elements/controls.h"
#include "elements/family.h"
#include "elements/label.h"

namespace veneerer {
namespace {

struct Bench : Window {
  explicit Bench(Switchboard& board) : Window(board, "Bench") { place(0, 0, 15360, 11520); }

  Single<Label> Label1{*this, "Label1"};
  Single<ComboBox> Combo1{*this, "Combo1"};
  Single<ListBox> List1{*this, "List1"};
};

class Resizing : public testing::Test {
protected:
  Resizing() {
    window.Label1->place(10, 20, 30, 40);
    window.Label1->setFontSize(8.25f);
    window.Combo1->place(10, 20, 30, 40);
    window.List1->place(10, 20, 30, 40);
  }

  static std::vector<float> placeOf(const Element& e) { return {e.left(), e.top(), e.width(), e.height()}; }

  Switchboard board;
  Bench window{board};
  Resizer resizer;
};

TEST_F(Resizing, ScalesPlacesAndFontsButNoHeightOfADropDownList) {
  resizer.ScaleAll(2, 3, window);
  EXPECT_EQ(placeOf(*window.Label1), (std::vector<float>{20, 60, 60, 120}));
  EXPECT_EQ(placeOf(*window.List1), (std::vector<float>{20, 60, 60, 120}));
  EXPECT_EQ(placeOf(*window.Combo1), (std::vector<float>{20, 60, 60, 40}));
  EXPECT_EQ(window.Label1->fontSize(), 8.25f * 2.5f);
  EXPECT_EQ(window.width(), 15360) << "the window moves only when it is told to";
}

TEST_F(Resizing, WorksInSinglePrecision) {
  window.Label1->setLeft(1234.567f);
  const float factor = 1280.0f / 1024.0f / 3;
  resizer.ScaleAll(factor, factor, window);
  resizer.ScaleAll(factor, factor, window);
  EXPECT_EQ(window.Label1->left(), 1234.567f * factor * factor);
}

TEST_F(Resizing, FitsTheScreenAndMovesTheWindow) {
  Screen screen;
  resizer.scaleToScreen(window, screen);
  EXPECT_EQ(placeOf(*window.Label1), (std::vector<float>{10, 20, 30, 40}));
  screen = {.width = 2048, .height = 1152, .dpiX = 120, .dpiY = 120};
  resizer.scaleToScreen(window, screen);
  EXPECT_EQ(placeOf(*window.Label1), (std::vector<float>{20, 30, 60, 60}));
  EXPECT_EQ(placeOf(window), (std::vector<float>{0, 0, 30720, 17280}));
}

TEST_F(Resizing, FollowsTheWindowsChangeOfSize) {
  resizer.scaleToScreen(window, Screen());
  window.setWidth(window.width() * 2);
  resizer.scaleOnResize(window);
  EXPECT_EQ(placeOf(*window.Label1), (std::vector<float>{20, 20, 60, 40}));
  EXPECT_EQ(window.width(), 15360 * 2);
  resizer.scaleOnResize(window);
  EXPECT_EQ(placeOf(*window.Label1), (std::vector<float>{20, 20, 60, 40})) << "no change, no scaling";
}

TEST_F(Resizing, TheWalkDoesNotStartAgainFromItsOwnMoves) {
  resizer.scaleToScreen(window, Screen());
  int walks = 0;
  const Attachment watching = board.watch([&](const Change& change) {
    if (&change.element != window.Label1.find(0) || change.property != Property::Left) return;
    ++walks;
    resizer.scaleOnResize(window);
  });
  window.setWidth(window.width() * 2);
  resizer.scaleOnResize(window);
  EXPECT_EQ(walks, 1);
}

TEST_F(Resizing, ImpossibleFactorsAreFaults) {
  EXPECT_THROW(resizer.scaleOnResize(window), ScaleFault) << "nothing remembered yet";
  resizer.scaleToScreen(window, Screen());
  window.setWidth(0);
  resizer.scaleOnResize(window);
  EXPECT_EQ(window.Label1->width(), 0);
  EXPECT_THROW(resizer.scaleOnResize(window), ScaleFault);
  EXPECT_THROW(resizer.scaleToScreen(window, {.width = 40'000}), ScaleFault);
}

TEST_F(Resizing, WhatCannotBeScaledIsPassedOver) {
  constexpr float kHuge = std::numeric_limits<float>::max();
  window.Label1->setWidth(kHuge);
  window.Combo1->setWidth(kHuge);
  resizer.ScaleAll(2, 2, window);
  EXPECT_EQ(placeOf(*window.Label1), (std::vector<float>{10, 20, kHuge, 40})) << "one move, all or nothing";
  EXPECT_EQ(window.Label1->fontSize(), 16.5f);
  EXPECT_EQ(placeOf(*window.Combo1), (std::vector<float>{20, 40, kHuge, 40})) << "three assignments";
  EXPECT_EQ(window.List1->left(), 20);
}

}  // namespace
}  // namespace veneerer
