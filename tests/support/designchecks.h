// What a careful eye would look for on a composed canvas. Each check names the elements that fail it, one a
// line; an empty text is a pass.
#pragma once

#include <QRectF>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <string>

#include "elements/colour.h"
#include "forms/form1.h"
#include "painting/textlayouts.h"

namespace veneerer::test {

inline QRectF rectOf(const Element& e) {
  return QRectF(e.left(), e.top(), e.width(), e.height());
}

template <class Check>
std::string failing(const Form1& form, Check check) {
  std::string keys;
  for (const Family* family : form.families())
    for (const Element* element : family->members())
      if (!check(*element)) keys += element->key().toStdString() + '\n';
  return keys;
}

inline double luminance(Colour colour) {
  const QColor c = colour.toQColor();
  const auto part = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
  return 0.2126 * part(c.redF()) + 0.7152 * part(c.greenF()) + 0.0722 * part(c.blueF());
}

inline double contrast(Colour a, Colour b) {
  const double one = luminance(a);
  const double other = luminance(b);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

inline bool isOpaqueGround(const Element& e) {
  return e.kind() == Kind::PictureBox || (e.kind() == Kind::Label && cast<Label>(e).isOpaque());
}

/// The colour behind a label: its own, that of the topmost sibling below that holds it, or the container's.
inline Colour groundOf(const Label& label) {
  if (label.isOpaque()) return label.backColor();
  const Element& container = *label.container();
  Colour ground = container.as<Colour>(Property::BackColor);
  for (const Element* sibling : container.children()) {
    if (sibling == &label) break;
    if (sibling->isVisible() && isOpaqueGround(*sibling) && rectOf(*sibling).contains(rectOf(label)))
      ground = sibling->as<Colour>(Property::BackColor);
  }
  return ground;
}

inline bool isReadable(const Element& element) {
  constexpr double kLeast = 4.5;
  if (element.kind() == Kind::Label) {
    const auto& label = static_cast<const Label&>(element);
    return contrast(label.foreColor(), groundOf(label)) >= kLeast;
  }
  if (element.kind() != Kind::Button) return true;
  const auto& button = static_cast<const Button&>(element);
  return contrast(button.foreColor(), button.backColor()) >= kLeast &&
         (button.gradientMode() == 0 || contrast(button.foreColor(), button.gradientColor()) >= kLeast);
}

/// Whether a caption fits in its element, without a word that is broken off or a line that is cut.
inline bool showsWholeText(const Element& element) {
  if (!element.has(Property::Caption)) return true;
  TextLayouts texts;
  const bool isButton = element.kind() == Kind::Button;
  const double width = element.width() / 15 - (isButton ? 4 : 0);
  const QString caption = element.as<QString>(Property::Caption);
  const LaidOutText& text =
      texts.of({QString(caption).replace("||", "\n"), element.as<QString>(Property::FontName),
                qRound(element.as<float>(Property::FontSize) * 96 / 72), fontFlags(element),
                static_cast<int>(isButton ? 4096 : width), 0});
  return text.width <= width + 0.5 && text.height <= element.height() / 15 + 0.5;
}

inline bool keepsInside(const Element& element) {
  return QRectF(0, 0, element.container()->width(), element.container()->height())
             .contains(rectOf(element)) &&
         element.width() > 0 && element.height() > 0;
}

/// Pairs of visible texts and buttons in one container that lie over one another, but for those of two
/// families that are meant to.
inline std::string overlaps(const Form1& form, const QStringList& meant) {
  std::string pairs;
  const auto counts = [](const Element& e) {
    return e.isVisible() && (e.kind() == Kind::Label || e.kind() == Kind::Button);
  };
  const auto compare = [&](const Element& a, const Element& b) {
    const QRectF common = rectOf(a) & rectOf(b);
    if (!counts(a) || !counts(b) || common.width() <= 1 || common.height() <= 1) return;
    if (!meant.contains(a.family()->name() + u'+' + b.family()->name()))
      pairs += (a.key() + u' ' + b.key()).toStdString() + '\n';
  };
  for (const Family* family : form.families())
    for (const Element* holder : family->members())
      for (std::size_t i = 0; i < holder->children().size(); ++i)
        for (std::size_t k = i + 1; k < holder->children().size(); ++k)
          compare(*holder->children()[i], *holder->children()[k]);
  return pairs;
}

}  // namespace veneerer::test
