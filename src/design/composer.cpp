#include "design/composer.h"

#include <cmath>

namespace veneerer::design {

namespace {

void setText(Label& label, const QString& caption, const TextLook& look, int points) {
  label.setCaption(caption);
  label.setForeColor(look.ink);
  label.setFontName(QStringLiteral("Arial"));
  label.setFontSize(static_cast<float>(points));
  label.set(Property::FontBold, look.bold);
  label.setAlignment(look.align);
}

}  // namespace

int Composer::px(int length) const {
  return static_cast<int>(std::lround(length * plan.scale));
}

int Composer::points(const TextLook& look) const {
  return static_cast<int>(std::lround(look.points * plan.textScale));
}

void Composer::panel(PictureBox& box, Element& holder, const Box& at, Colour back) {
  box.setContainer(holder);
  box.setBackColor(back);
  box.setForeColor(theme.screen.body);
  put(box, at);
}

void Composer::image(Element& image, Element& holder, const Box& at) {
  image.setContainer(holder);
  put(image, at);
}

void Composer::text(Label& label, Element& holder, const Box& at, const QString& caption,
                    const TextLook& look) {
  label.setContainer(holder);
  setText(label, caption, look, points(look));
  label.setBackColor(theme.row.back);
  label.setOpaque(false);
  put(label, at);
}

void Composer::line(Label& label, Element& holder, const Box& at, const QString& caption,
                    const TextLook& look) {
  text(label, holder, lineIn(at, points(look)), caption, look);
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
  button.setButtonShape(look.shape);
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
  const Box header = all.cutTop(c.px(kHeaderHeight), c.px(8));
  all.cutBottom(c.px(kMargin));
  return {header, all};
}

}  // namespace veneerer::design
