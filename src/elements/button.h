// lvButtons_H, the one owner-drawn button of the system. Its drawing is in painting/.
#pragma once

#include "elements/element.h"

namespace veneerer {

enum class ButtonMode { Command = 0, CheckBox = 1, OptionButton = 2 };
enum class PictureAlign { LeftEdge = 0, LeftOfCaption, RightEdge, RightOfCaption, TopCenter, BottomCenter };
enum class CaptionStyle { Flat = 0, Embossed = 1, Engraved = 2 };

class Button : public Element {
public:
  static constexpr int kLastShape = 8;
  /// From here on the outline comes from the picture.
  static constexpr int kFirstCustomShape = 7;
  static constexpr int kLastPictureSize = 4;

  Button(Window& window, Family* family, int index) : Element(Kind::Button, window, family, index) {}

  const QString& caption() const { return as<QString>(Property::Caption); }
  int buttonShape() const { return as<std::int32_t>(Property::ButtonShape); }
  int buttonStyle() const { return as<std::int32_t>(Property::ButtonStyle); }
  std::int32_t backColor() const { return as<std::int32_t>(Property::BackColor); }
  std::int32_t foreColor() const { return as<std::int32_t>(Property::ForeColor); }
  std::int32_t gradientColor() const { return as<std::int32_t>(Property::GradientColor); }
  int gradientMode() const { return as<std::int32_t>(Property::GradientMode); }
  int pictureSize() const { return as<std::int32_t>(Property::PictureSize); }
  const Picture& picture() const { return as<Picture>(Property::Picture); }
  bool isCustomShaped() const { return buttonShape() >= kFirstCustomShape; }

  void setCaption(const QString& text) { set(Property::Caption, text); }
  void setButtonShape(int shape) { set(Property::ButtonShape, shape); }
  void setButtonStyle(int style) { set(Property::ButtonStyle, style); }
  void setBackColor(std::int32_t colour) { set(Property::BackColor, colour); }
  void setForeColor(std::int32_t colour) { set(Property::ForeColor, colour); }
  void setGradientColor(std::int32_t colour) { set(Property::GradientColor, colour); }
  void setGradientMode(int mode) { set(Property::GradientMode, mode); }
  void setPictureSize(int size) { set(Property::PictureSize, size); }
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
