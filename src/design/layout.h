// Arithmetic of a composition: rectangles that are cut into rows, columns and grids. Everything is in whole
// pixels of a 96 dots-per-inch screen, so that edges stay sharp; only placing an element turns them to twips.
#pragma once

#include "elements/element.h"

namespace veneerer::design {

inline constexpr int kTwipsPerPixel = 15;

/// A rectangle in pixels, relative to whatever holds the elements that are placed in it.
struct Box {
  int x = 0;
  int y = 0;
  int w = 0;
  int h = 0;

  int right() const { return x + w; }
  int bottom() const { return y + h; }
  /// The rectangle's own inside: the same size at 0, 0.
  Box inside() const { return {0, 0, w, h}; }
  Box inset(int across, int down) const;
  Box inset(int margin) const { return inset(margin, margin); }
  Box moved(int dx, int dy) const { return {x + dx, y + dy, w, h}; }
  /// A rectangle of that size in the middle of this one.
  Box centred(int width, int height) const;

  // Each cuts a strip off one side, with a gap towards the rest, and returns it.
  Box cutTop(int height, int gap = 0);
  Box cutBottom(int height, int gap = 0);
  Box cutLeft(int width, int gap = 0);
  Box cutRight(int width, int gap = 0);

  bool operator==(const Box&) const = default;
};

/// Equal cells in reading order; what can't be shared out evenly goes to the later gaps.
class Grid {
public:
  Grid(const Box& area, int columns, int rows, int gap) : Grid(area, columns, rows, gap, gap) {}
  Grid(const Box& area, int columns, int rows, int gapAcross, int gapDown);

  Box cell(int index) const { return cell(index % columns_, index / columns_); }
  Box cell(int column, int row) const { return span(column, row, 1); }
  /// Cells side by side as one.
  Box span(int column, int row, int count) const;

private:
  Box area_;
  int columns_;
  int rows_;
  int gapAcross_;
  int gapDown_;
};

/// Ascent and descent of the usual sans-serif fonts, in sizes.
inline constexpr double kLineFactor = 1.15;

/// The height of one line of text of that size in points, pixels.
int lineHeight(int points, double lineFactor = kLineFactor);

/// Where a line of that height stands in the middle of the rectangle's; a label's text begins at its top.
Box lineIn(const Box& box, int height);

/// Places the element, in twips.
void put(Element& element, const Box& box);

/// Where the element stands, in pixels.
Box boxOf(const Element& element);

}  // namespace veneerer::design
