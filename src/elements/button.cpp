#include "elements/button.h"

#include "elements/kinds.h"

namespace veneerer {

namespace {

constexpr char kPictureFirst[] = "The Picture Property must be assigned first and must be a bitmap or JPEG.";
constexpr char kNoIcons[] =
    "Icons cannot be used for custom buttons. Only use bitmaps or JPEGs.\n"
    "Button was changed to Rectangular shaped.";
constexpr char kFixedPictureSize[] = "The picture size cannot be changed for Shaped buttons";
constexpr char kCustomOnly[] = "This property has no effect unless the Button Shape is a custom shape.";
constexpr char kNotForCommands[] = "This property is not applicable for command button modes.";
constexpr char kCenterOnly[] =
    "When button images are aligned top/bottom center,\nbutton captions can only be center aligned";
constexpr char kDesignOnly[] =
    "The focus rectangle may appear on default buttons ONLY while in design mode,\n"
    "but will not appear when the form is running.";

bool isInside(const Value& value, int last) {
  const int number = std::get<std::int32_t>(value);
  return number >= 0 && number <= last;
}

}  // namespace

void Button::resetDefaultColors() {
  setBackColor(kButtonFace);
  setForeColor(kButtonText);
  set(Property::HoverBackColor, kButtonFace);
  set(Property::HoverForeColor, kButtonText);
}

QString Button::refusal(Property property, const Value& value) const {
  const auto said = [](bool holds, const char* text) {
    return holds ? QString::fromLatin1(text) : QString();
  };
  const int pictureAlign = as<std::int32_t>(Property::PictureAlign);
  switch (property) {
    case Property::ButtonShape:
      return said(isInside(value, kLastShape) && std::get<std::int32_t>(value) >= kFirstCustomShape &&
                      (picture().isNull() || picture().isIcon()),
                  kPictureFirst);
    case Property::Picture:
      return said(isCustomShaped() && std::get<Picture>(value).isIcon(), kNoIcons);
    case Property::PictureSize:
      return said(isInside(value, static_cast<int>(PictureSize::Fitted)) && isCustomShaped(),
                  kFixedPictureSize);
    case Property::CustomClick:
      return said(!isCustomShaped(), kCustomOnly);
    case Property::Value:
      return said(as<std::int32_t>(Property::Mode) == static_cast<int>(ButtonMode::Command), kNotForCommands);
    case Property::CaptionAlign:
      return said(pictureAlign >= static_cast<int>(PictureAlign::TopCenter), kCenterOnly);
    case Property::ShowFocusRect:
      return said(std::get<bool>(value), kDesignOnly);
    default:
      return {};
  }
}

bool Button::accepts(Property property, const Value& value) const {
  switch (property) {
    case Property::ButtonShape:
      return isInside(value, kLastShape) && refusal(property, value).isEmpty();
    case Property::PictureSize:
      return isInside(value, static_cast<int>(PictureSize::Fitted)) && refusal(property, value).isEmpty();
    case Property::CustomClick:
    case Property::Value:
    case Property::CaptionAlign:
      return refusal(property, value).isEmpty();
    default:
      return Element::accepts(property, value);
  }
}

void Button::stored(Property property) {
  if (property == Property::Picture && isCustomShaped() && picture().isIcon()) setButtonShape(0);
  if (property == Property::Value) leaveOptionGroup();
}

// Option buttons of one container form a group of which one is set at a time.
void Button::leaveOptionGroup() {
  constexpr int kOption = static_cast<int>(ButtonMode::OptionButton);
  if (as<std::int32_t>(Property::Mode) != kOption || as<std::int32_t>(Property::Value) == 0) return;
  if (!container()) return;
  for (Element* sibling : container()->children())
    if (sibling != this && sibling->kind() == Kind::Button &&
        sibling->as<std::int32_t>(Property::Mode) == kOption)
      sibling->set(Property::Value, 0);
}

}  // namespace veneerer
