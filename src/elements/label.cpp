#include "elements/label.h"

#include "elements/texts.h"

namespace veneerer {

FontChoice Label::font() const {
  return {fontName(),
          fontSize(),
          as<bool>(Property::FontBold),
          as<bool>(Property::FontItalic),
          as<bool>(Property::FontUnderline),
          as<bool>(Property::FontStrikethrough)};
}

void Label::setFont(const FontChoice& font) {
  setFontName(font.name);
  setFontSize(font.size);
  set(Property::FontBold, font.bold);
  set(Property::FontItalic, font.italic);
  set(Property::FontUnderline, font.underline);
  set(Property::FontStrikethrough, font.strikethrough);
}

QString Label::rangeFault(Property property, const Value& value) const {
  if (property != Property::Alignment) return {};
  const int alignment = std::get<std::int32_t>(value);
  if (alignment >= 0 && alignment <= 2) return {};
  return ElementTexts::tr("an alignment is 0, 1 or 2, not %1").arg(alignment);
}

}  // namespace veneerer
