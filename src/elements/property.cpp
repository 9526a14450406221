#include "elements/property.h"

#include <array>

namespace veneerer {

namespace {

constexpr std::array<QLatin1String, kPropertyCount> kNames = {
    QLatin1String("Left"),
    QLatin1String("Top"),
    QLatin1String("Width"),
    QLatin1String("Height"),
    QLatin1String("Visible"),
    QLatin1String("ToolTipText"),
    QLatin1String("StackOrder"),
    QLatin1String("Caption"),
    QLatin1String("BackColor"),
    QLatin1String("ForeColor"),
    QLatin1String("BackStyle"),
    QLatin1String("Alignment"),
    QLatin1String("FontName"),
    QLatin1String("FontSize"),
    QLatin1String("FontBold"),
    QLatin1String("FontItalic"),
    QLatin1String("FontUnderline"),
    QLatin1String("FontStrikethrough"),
    QLatin1String("ButtonShape"),
    QLatin1String("ButtonStyle"),
    QLatin1String("GradientColor"),
    QLatin1String("GradientMode"),
    QLatin1String("PictureSize"),
    QLatin1String("Picture"),
    QLatin1String("PictureAlign"),
    QLatin1String("CaptionAlign"),
    QLatin1String("CaptionStyle"),
    QLatin1String("Mode"),
    QLatin1String("CustomClick"),
    QLatin1String("ShowFocusRect"),
    QLatin1String("HoverColorLocks"),
    QLatin1String("HoverForeColor"),
    QLatin1String("HoverBackColor"),
    QLatin1String("MousePointer"),
    QLatin1String("MouseIcon"),
    QLatin1String("Enabled"),
    QLatin1String("BorderStyle"),
    QLatin1String("Stretch"),
    QLatin1String("Text"),
    QLatin1String("ListIndex"),
    QLatin1String("List"),
    QLatin1String("Value"),
};

}  // namespace

QLatin1String propertyName(Property property) {
  return kNames[static_cast<std::size_t>(property)];
}

std::optional<Property> propertyNamed(QLatin1String name) {
  for (std::size_t i = 0; i < kNames.size(); ++i)
    if (kNames[i] == name) return static_cast<Property>(i);
  return std::nullopt;
}

}  // namespace veneerer
