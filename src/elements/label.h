#pragma once

#include "elements/backstyle.h"
#include "elements/element.h"

namespace veneerer {

enum class Alignment { Left = 0, Right = 1, Center = 2 };

/// A font's six attributes; the size is in points.
struct FontChoice {
  QString name;
  float size = 8;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;
};

/// A line or a paragraph of text.
class Label : public Element {
public:
  Label(Window& window, Family* family, int index) : Element(Kind::Label, window, family, index) {}

  const QString& caption() const { return as<QString>(Property::Caption); }
  Colour backColor() const { return as<Colour>(Property::BackColor); }
  Colour foreColor() const { return as<Colour>(Property::ForeColor); }
  bool isOpaque() const { return as<std::int32_t>(Property::BackStyle) == 1; }
  int alignment() const { return as<std::int32_t>(Property::Alignment); }
  const QString& fontName() const { return as<QString>(Property::FontName); }
  float fontSize() const { return as<float>(Property::FontSize); }
  FontChoice font() const;

  void setCaption(const QString& text) { set(Property::Caption, text); }
  void setBackColor(Colour colour) { set(Property::BackColor, colour); }
  void setForeColor(Colour colour) { set(Property::ForeColor, colour); }
  void setOpaque(bool opaque) { set(Property::BackStyle, opaque ? 1 : 0); }
  /// A value outside 0 to 2 is refused.
  void setAlignment(int alignment) { set(Property::Alignment, alignment); }
  void setAlignment(Alignment alignment) { setAlignment(static_cast<int>(alignment)); }
  void setFontName(const QString& name) { set(Property::FontName, name); }
  void setFontSize(float points) { set(Property::FontSize, points); }
  /// Name, size, bold, italic, underline, strikethrough, in this order.
  void setFont(const FontChoice& font);

  QString rangeFault(Property property, const Value& value) const override;
};

}  // namespace veneerer
