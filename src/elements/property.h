// The names of everything that an element can hold. One enumeration serves all kinds: a notice, a record
// line and a tool speak of a property in the same way, whatever kind of element it belongs to.
#pragma once

#include <QLatin1String>
#include <cstdint>
#include <optional>

namespace veneerer {

enum class Property : std::uint8_t {
  Left,    ///< twips, relative to the container
  Top,     ///< twips, relative to the container
  Width,   ///< twips
  Height,  ///< twips
  Visible,
  ToolTipText,
  StackOrder,  ///< notice only: the element moved within its container's stacking order
  Caption,
  BackColor,  ///< 0x00BBGGRR; a set top bit names a system colour
  ForeColor,  ///< as BackColor
  BackStyle,  ///< of BackStyle
  Alignment,  ///< 0 left, 1 right, 2 centre
  FontName,
  FontSize,  ///< points
  FontBold,
  FontItalic,
  FontUnderline,
  FontStrikethrough,
  ButtonShape,    ///< 0 to 8
  ButtonStyle,    ///< 0 to 7
  GradientColor,  ///< as BackColor
  GradientMode,   ///< 0 to 4
  PictureSize,    ///< 0 to 4, see PictureSize
  Picture,
  PictureAlign,  ///< 0 to 5, see PictureAlign
  CaptionAlign,  ///< 0 left, 1 right, 2 centre
  CaptionStyle,  ///< 0 flat, 1 embossed, 2 engraved
  Mode,          ///< 0 command button, 1 check box, 2 option button
  CustomClick,
  ShowFocusRect,
  HoverColorLocks,  ///< 0 none, 1 fore, 2 back, 3 both follow the normal colours
  HoverForeColor,
  HoverBackColor,
  MousePointer,
  MouseIcon,
  Enabled,
  BorderStyle,  ///< 0 none, 1 a single line
  Stretch,
  Text,
  ListIndex,  ///< -1 for no row
  List,
  Value,
  Name,  ///< of an image, as its record file tells it
};

inline constexpr int kPropertyCount = static_cast<int>(Property::Name) + 1;

/// The property's name as scripts, state dumps and error messages write it.
QLatin1String propertyName(Property property);

/// The alternatives of a Value, in its order.
enum class ValueType : std::uint8_t { Truth, Whole, Single, Text, Texts, Picture, Stored, Colour };

/// What the property's values are, whatever kind of element has it.
ValueType propertyType(Property property);

/// The property of that exact name, or nothing.
std::optional<Property> propertyNamed(QLatin1String name);

}  // namespace veneerer
