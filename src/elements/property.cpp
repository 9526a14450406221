#include "elements/property.h"

#include <array>

namespace veneerer {

namespace {

using P = Property;

struct PropertyRow {
  Property property;
  QLatin1String name;
  ValueType type;
};

constexpr PropertyRow kProperties[] = {
    {P::Left, QLatin1String("Left"), ValueType::Single},
    {P::Top, QLatin1String("Top"), ValueType::Single},
    {P::Width, QLatin1String("Width"), ValueType::Single},
    {P::Height, QLatin1String("Height"), ValueType::Single},
    {P::Visible, QLatin1String("Visible"), ValueType::Truth},
    {P::ToolTipText, QLatin1String("ToolTipText"), ValueType::Text},
    {P::StackOrder, QLatin1String("StackOrder"), ValueType::Whole},
    {P::Caption, QLatin1String("Caption"), ValueType::Text},
    {P::BackColor, QLatin1String("BackColor"), ValueType::Colour},
    {P::ForeColor, QLatin1String("ForeColor"), ValueType::Colour},
    {P::BackStyle, QLatin1String("BackStyle"), ValueType::Whole},
    {P::Alignment, QLatin1String("Alignment"), ValueType::Whole},
    {P::FontName, QLatin1String("FontName"), ValueType::Text},
    {P::FontSize, QLatin1String("FontSize"), ValueType::Single},
    {P::FontBold, QLatin1String("FontBold"), ValueType::Truth},
    {P::FontItalic, QLatin1String("FontItalic"), ValueType::Truth},
    {P::FontUnderline, QLatin1String("FontUnderline"), ValueType::Truth},
    {P::FontStrikethrough, QLatin1String("FontStrikethrough"), ValueType::Truth},
    {P::ButtonShape, QLatin1String("ButtonShape"), ValueType::Whole},
    {P::ButtonStyle, QLatin1String("ButtonStyle"), ValueType::Whole},
    {P::GradientColor, QLatin1String("GradientColor"), ValueType::Colour},
    {P::GradientMode, QLatin1String("GradientMode"), ValueType::Whole},
    {P::PictureSize, QLatin1String("PictureSize"), ValueType::Whole},
    {P::Picture, QLatin1String("Picture"), ValueType::Picture},
    {P::PictureAlign, QLatin1String("PictureAlign"), ValueType::Whole},
    {P::CaptionAlign, QLatin1String("CaptionAlign"), ValueType::Whole},
    {P::CaptionStyle, QLatin1String("CaptionStyle"), ValueType::Whole},
    {P::Mode, QLatin1String("Mode"), ValueType::Whole},
    {P::CustomClick, QLatin1String("CustomClick"), ValueType::Truth},
    {P::ShowFocusRect, QLatin1String("ShowFocusRect"), ValueType::Truth},
    {P::HoverColorLocks, QLatin1String("HoverColorLocks"), ValueType::Whole},
    {P::HoverForeColor, QLatin1String("HoverForeColor"), ValueType::Colour},
    {P::HoverBackColor, QLatin1String("HoverBackColor"), ValueType::Colour},
    {P::MousePointer, QLatin1String("MousePointer"), ValueType::Whole},
    {P::MouseIcon, QLatin1String("MouseIcon"), ValueType::Picture},
    {P::Enabled, QLatin1String("Enabled"), ValueType::Truth},
    {P::BorderStyle, QLatin1String("BorderStyle"), ValueType::Whole},
    {P::Stretch, QLatin1String("Stretch"), ValueType::Truth},
    {P::Text, QLatin1String("Text"), ValueType::Text},
    {P::ListIndex, QLatin1String("ListIndex"), ValueType::Whole},
    {P::List, QLatin1String("List"), ValueType::Texts},
    {P::Value, QLatin1String("Value"), ValueType::Whole},
    {P::Name, QLatin1String("Name"), ValueType::Stored},
};

constexpr bool isInOrder() {
  int place = 0;
  for (const PropertyRow& row : kProperties)
    if (static_cast<int>(row.property) != place++) return false;
  return place == kPropertyCount;
}
static_assert(isInOrder(), "the table lists every property once, in the order of the enumeration");

const PropertyRow& rowOf(Property property) {
  return kProperties[static_cast<std::size_t>(property)];
}

}  // namespace

QLatin1String propertyName(Property property) {
  return rowOf(property).name;
}

ValueType propertyType(Property property) {
  return rowOf(property).type;
}

std::optional<Property> propertyNamed(QLatin1String name) {
  for (const PropertyRow& row : kProperties)
    if (row.name == name) return row.property;
  return std::nullopt;
}

}  // namespace veneerer
