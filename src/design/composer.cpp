#include "design/composer.h"

#include <cmath>

namespace veneerer::design {

namespace {

void setText(Label& label, const QString& caption, const TextLook& look, const QString& font, int points) {
  label.setCaption(caption);
  label.setForeColor(look.ink);
  label.setFontName(font);
  label.setFontSize(static_cast<float>(points));
  label.set(Property::FontBold, look.bold);
  label.setAlignment(look.align);
}

// Sloping sides eat up a tall and narrow button.
bool hasRoomForSlopes(const Box& at) {
  return 2 * at.h <= 3 * at.w / 2;
}

}  // namespace

int Composer::px(int length) const {
  return static_cast<int>(std::lround(length * plan.scale));
}

int Composer::points(const TextLook& look) const {
  return std::max(plan.leastPoints, static_cast<int>(std::lround(look.points * plan.textScale)));
}

void Composer::panel(PictureBox& box, Element& holder, const Box& at, Colour back) {
  box.setContainer(holder);
  box.setBackColor(back);
  box.setForeColor(theme.screen.body);
  put(box, at);
}

void Composer::clearPanel(PictureBox& box, Element& holder, const Box& at) {
  panel(box, holder, at, kCardBack);
  box.setBackStyle(BackStyle::Transparent);
}

void Composer::artwork(PictureBox& box, Element& holder, const Box& at) {
  panel(box, holder, at, kArtwork);
  box.setBackStyle(BackStyle::Veil);
}

void Composer::image(Element& image, Element& holder, const Box& at) {
  image.setContainer(holder);
  put(image, at);
}

void Composer::text(Label& label, Element& holder, const Box& at, const QString& caption,
                    const TextLook& look) {
  label.setContainer(holder);
  setText(label, caption, look, plan.font, points(look));
  label.setBackColor(theme.row.back);
  label.setOpaque(false);
  put(label, at);
}

void Composer::line(Label& label, Element& holder, const Box& at, const QString& caption,
                    const TextLook& look) {
  text(label, holder, lineIn(at, lineOf(look)), caption, look);
}

void Composer::field(Label& label, Element& holder, const Box& at, const QString& caption,
                     const TextLook& look) {
  text(label, holder, at, caption, look);
  label.setBackColor(theme.field.back);
  label.setOpaque(true);
}

void Composer::button(Button& button, Element& holder, const Box& at, const QString& caption,
                      const ButtonLook& look, int points) {
  button.setContainer(holder);
  button.setCaption(caption);
  button.setButtonShape(hasRoomForSlopes(at) ? look.shape : 0);
  button.setButtonStyle(look.style);
  button.setBackColor(look.back);
  button.setForeColor(look.fore);
  button.setGradientColor(look.gradient);
  button.setGradientMode(look.mode);
  button.setPictureSize(PictureSize::Stretched);
  button.set(Property::FontSize, static_cast<float>(points));
  button.set(Property::FontBold, true);
  put(button, at);
}

void Composer::buttons(Array<Button>& family, int first, Element& holder, const Grid& grid, Captions captions,
                       const ButtonLook& look, int points) {
  for (std::size_t i = 0; i < captions.size(); ++i) {
    const int at = static_cast<int>(i);
    button(family[first + at], holder, grid.cell(at), QString::fromLatin1(captions[i]), look, points);
  }
}

ScreenParts partsOf(const Composer& c, const Element& screen) {
  Box all = boxOf(screen).inside().inset(c.px(kMargin), 0);
  // Some buttons in it have one size in all Skins.
  const Box header = all.cutTop(std::max(c.px(kHeaderHeight), kHeaderHeight), c.px(8));
  all.cutBottom(c.px(kMargin));
  return {header, all};
}

Box dialogOf(const Element& screen) {
  const Box all = boxOf(screen).inside();
  return all.centred(std::min(all.w, all.h * 8 / 5), std::min(all.h, all.w * 11 / 10));
}

Box cutPicture(Box& row, int gap) {
  const int side = std::min(row.h, row.w / 2);
  return row.cutLeft(side, gap).centred(side, side);
}

}  // namespace veneerer::design
