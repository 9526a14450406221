// lvButtons_H, the one owner-drawn button of the system. Its drawing is in painting/.
#pragma once

#include "elements/element.h"

namespace veneerer {

enum class ButtonMode { Command = 0, CheckBox = 1, OptionButton = 2 };
enum class PictureAlign { LeftEdge = 0, LeftOfCaption, RightEdge, RightOfCaption, TopCenter, BottomCenter };
/// The sides of a small picture in pixels; a covering one is stretched over the face or keeps its
/// proportions.
enum class PictureSize { Side16 = 0, Side24, Side32, Stretched, Fitted };
enum class CaptionStyle { Flat = 0, Embossed = 1, Engraved = 2 };

class Button : public Element {
public:
  static constexpr int kLastShape = 8;
  /// From here on the outline comes from the picture.
  static constexpr int kFirstCustomShape = 7;

  Button(Window& window, Family* family, int index) : Element(Kind::Button, window, family, index) {}

  const QString& caption() const { return as<QString>(Property::Caption); }
  int buttonShape() const { return as<std::int32_t>(Property::ButtonShape); }
  int buttonStyle() const { return as<std::int32_t>(Property::ButtonStyle); }
  Colour backColor() const { return as<Colour>(Property::BackColor); }
  Colour foreColor() const { return as<Colour>(Property::ForeColor); }
  Colour gradientColor() const { return as<Colour>(Property::GradientColor); }
  int gradientMode() const { return as<std::int32_t>(Property::GradientMode); }
  PictureSize pictureSize() const {
    return static_cast<PictureSize>(as<std::int32_t>(Property::PictureSize));
  }
  const Picture& picture() const { return as<Picture>(Property::Picture); }
  bool isCustomShaped() const { return buttonShape() >= kFirstCustomShape; }

  void setCaption(const QString& text) { set(Property::Caption, text); }
  void setButtonShape(int shape) { set(Property::ButtonShape, shape); }
  void setButtonStyle(int style) { set(Property::ButtonStyle, style); }
  void setBackColor(Colour colour) { set(Property::BackColor, colour); }
  void setForeColor(Colour colour) { set(Property::ForeColor, colour); }
  void setGradientColor(Colour colour) { set(Property::GradientColor, colour); }
  void setGradientMode(int mode) { set(Property::GradientMode, mode); }
  void setPictureSize(PictureSize size) { set(Property::PictureSize, static_cast<std::int32_t>(size)); }
  void setPicture(const Picture& picture) { set(Property::Picture, picture); }

  /// Sets the four colours back to the platform's standard.
  void resetDefaultColors();

  QString refusal(Property property, const Value& value) const override;

protected:
  bool accepts(Property property, const Value& value) const override;
  void stored(Property property) override;

private:
  void leaveOptionGroup();
};

}  // namespace veneerer
