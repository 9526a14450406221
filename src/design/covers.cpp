#include "design/covers.h"

#include <algorithm>
#include <cstdlib>

namespace veneerer::design {

namespace {

constexpr int kCaptionWidth = 76;  // that of the usual captions
constexpr int kSpare = 29;         // the last cover and frame, which no layout uses

TextLook captionLook(Colour ink, bool isFeatured, bool bold) {
  return {ink, isFeatured ? 13 : 9, bold, Alignment::Center};
}

void composeCaption(Composer& c, Label& label, const Box& at, const QString& text, const TextLook& look) {
  c.field(label, c.form.Picture1[9], at, text, look);
  label.setBackColor(c.theme.row.back);
}

// Year and genre stand under the other two captions, or in their place where the layout doesn't show them.
void composeDates(Composer& c, Box& cell, int i, bool hasRoom) {
  const TextLook look = captionLook(c.theme.row.muted, false, false);
  const int height = c.lineOf(look);
  Box lines = Box(cell).cutBottom(2 * height);
  if (hasRoom) cell.cutBottom(2 * height);
  composeCaption(c, c.form.Label63[i], lines.cutBottom(height), QStringLiteral("Genre:  %1").arg(i), look);
  composeCaption(c, c.form.Label62[i], lines, QStringLiteral("Released:  %1").arg(i), look);
}

void composeTitles(Composer& c, Box& cell, int i) {
  Form1& f = c.form;
  const bool isFeatured = i == kFeaturedCover;
  const TextLook artist = captionLook(c.theme.row.body, isFeatured, false);
  const TextLook title = captionLook(c.theme.row.heading, isFeatured, true);
  composeCaption(c, f.Label10[i], cell.cutBottom(c.lineOf(artist)),
                 isFeatured ? QStringLiteral("Featured 10") : QStringLiteral("Artist Name"), artist);
  composeCaption(c, f.Label9[i], cell.cutBottom(c.lineOf(title)),
                 isFeatured ? QStringLiteral("Featured 9") : QStringLiteral("Album Name"), title);
}

void composePicture(Composer& c, const Box& frame, int i) {
  PictureBox& screen = c.form.Picture1[9];
  c.image(c.form.Image2[i], screen, frame.inset(c.px(6)));
  c.form.Image2[i].setStretch(true);
  c.image(c.form.ucAniGIF1[i], screen, frame);
}

// The captions at the foot of the cell, the cover as a square on top of them.
void composeCell(Composer& c, Box cell, int i, bool dates) {
  composeDates(c, cell, i, dates);
  composeTitles(c, cell, i);
  const int side = std::min(cell.w, cell.h - c.px(4));
  composePicture(c, {cell.x + (cell.w - side) / 2, cell.bottom() - c.px(4) - side, side, side}, i);
}

// A cover beside the middle one is an eighth smaller for each step away from it.
void composeOverlapping(Composer& c, const Box& area, const CoverLayout& layout, int i) {
  const int at = i % layout.count;
  Box cell = Grid(area, layout.count, 1, c.px(4)).cell(at);
  composeDates(c, cell, i, layout.dates);
  composeTitles(c, cell, i);
  const int steps = std::abs(at - layout.count / 2);
  const int side = std::min(cell.h, area.w * 2 / 5) * (8 - steps) / 8;
  // The outermost covers keep within the area.
  const int left = std::clamp(cell.x + (cell.w - side) / 2, area.x, area.right() - side);
  composePicture(c, {left, cell.y + (cell.h - side) / 2, side, side}, i);
}

void composeFeatured(Composer& c, Box area) {
  const int side = std::min(area.w, area.h);
  composeCell(c, area.centred(area.w, std::min(area.h, side + c.px(60))), kFeaturedCover, false);
}

// So that the covers become as large as can be.
int columnsFor(const Composer& c, const Box& area, const CoverLayout& layout) {
  if (layout.columns > 0) return layout.columns;
  const int captions = c.lineOf(captionLook({}, false, true)) * (layout.dates ? 4 : 2) + c.px(12);
  int best = 1, largest = 0;
  for (int columns = 1; columns <= layout.count; ++columns) {
    const int rows = (layout.count + columns - 1) / columns;
    const int width = area.w / columns - c.px(10);
    const int side = std::min(width, area.h / rows - captions);
    if (side <= largest || width < c.px(kCaptionWidth)) continue;
    largest = side;
    best = columns;
  }
  return best;
}

}  // namespace

void composeCovers(Composer& c, Box area, const CoverLayout& layout) {
  // No layout shows the featured album; it waits in the middle for an operator who does.
  composeFeatured(c, area.centred(area.w / 3, area.h * 2 / 3));
  const int columns = columnsFor(c, area, layout);
  const int rows = (layout.count + columns - 1) / columns;
  const Grid grid(area, columns, rows, c.px(10), c.px(8));
  for (int i = kCovers - 1; i >= 0; --i)
    if (layout.overlapping)
      composeOverlapping(c, area, layout, i);
    else
      composeCell(c, grid.cell(i % layout.count), i, layout.dates);
  composePicture(c, area.centred(c.px(48), c.px(48)), kSpare);
}

int sliderWidth(const Composer& c) {
  constexpr int kOfItsLetter = 34;
  return std::max(c.px(kOfItsLetter), kOfItsLetter);
}

Box coverArea(const Composer& c) {
  Box area = partsOf(c, c.form.Picture1[9]).body;
  // The slider makes the buttons at the foot needless.
  if (!c.plan.sliderUpright) area.cutBottom(c.px(kTouch), c.px(6));
  area.cutTop(c.px(28), c.px(6));
  area = area.inset(c.px(60), 0);
  if (c.plan.sliderUpright) area.cutRight(sliderWidth(c), c.px(8));
  return area;
}

}  // namespace veneerer::design
