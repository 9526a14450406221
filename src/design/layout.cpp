#include "design/layout.h"

#include <cmath>

namespace veneerer::design {

namespace {

// The start of the given share when a length is dealt out in equal whole pixels.
int shareStart(int length, int count, int gap, int index) {
  return (length + gap) * index / count;
}

}  // namespace

Box Box::inset(int across, int down) const {
  return {x + across, y + down, w - 2 * across, h - 2 * down};
}

Box Box::centred(int width, int height) const {
  return {x + (w - width) / 2, y + (h - height) / 2, width, height};
}

Box Box::cutTop(int height, int gap) {
  const Box strip{x, y, w, height};
  y += height + gap;
  h -= height + gap;
  return strip;
}

Box Box::cutBottom(int height, int gap) {
  h -= height + gap;
  return {x, y + h + gap, w, height};
}

Box Box::cutLeft(int width, int gap) {
  const Box strip{x, y, width, h};
  x += width + gap;
  w -= width + gap;
  return strip;
}

Box Box::cutRight(int width, int gap) {
  w -= width + gap;
  return {x + w + gap, y, width, h};
}

Grid::Grid(const Box& area, int columns, int rows, int gapAcross, int gapDown)
    : area_(area), columns_(columns), rows_(rows), gapAcross_(gapAcross), gapDown_(gapDown) {}

Box Grid::span(int column, int row, int count) const {
  const int width = (area_.w + gapAcross_) / columns_ - gapAcross_;
  const int height = (area_.h + gapDown_) / rows_ - gapDown_;
  const int left = shareStart(area_.w, columns_, gapAcross_, column);
  const int last = shareStart(area_.w, columns_, gapAcross_, column + count - 1);
  return {area_.x + left, area_.y + shareStart(area_.h, rows_, gapDown_, row), last - left + width, height};
}

int lineHeight(int points, double lineFactor) {
  // Two pixels keep accents whole.
  return static_cast<int>(std::ceil(points * 96.0 / 72.0 * lineFactor)) + 2;
}

Box lineIn(const Box& box, int height) {
  return {box.x, box.y + (box.h - height) / 2, box.w, height};
}

void put(Element& element, const Box& box) {
  element.place(static_cast<float>(box.x * kTwipsPerPixel), static_cast<float>(box.y * kTwipsPerPixel),
                static_cast<float>(box.w * kTwipsPerPixel), static_cast<float>(box.h * kTwipsPerPixel));
}

Box boxOf(const Element& element) {
  const auto pixels = [](float twips) { return static_cast<int>(twips) / kTwipsPerPixel; };
  return {pixels(element.left()), pixels(element.top()), pixels(element.width()), pixels(element.height())};
}

}  // namespace veneerer::design
