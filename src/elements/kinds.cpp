#include "elements/kinds.h"

#include <array>

#include "elements/require.h"

namespace veneerer {

namespace {

using P = Property;
using Defaults = std::vector<PropertyDefault>;

constexpr int kKindCount = static_cast<int>(Kind::CoverIndex) + 1;

Defaults operator+(Defaults left, const Defaults& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

const Defaults kPlace = {{P::Left, 0.0f},   {P::Top, 0.0f},     {P::Width, 0.0f},
                         {P::Height, 0.0f}, {P::Visible, true}, {P::ToolTipText, QString()}};

const Defaults kFont = {{P::FontName, QStringLiteral("Arial")},
                        {P::FontSize, 8.0f},
                        {P::FontBold, false},
                        {P::FontItalic, false},
                        {P::FontUnderline, false},
                        {P::FontStrikethrough, false}};

const Defaults kPicture = {{P::Picture, Picture()}};

Defaults labelDefaults() {
  return kPlace + kFont +
         Defaults{{P::Caption, QString()},
                  {P::BackColor, kButtonFace},
                  {P::ForeColor, kButtonText},
                  {P::BackStyle, 1},
                  {P::Alignment, 0}};
}

Defaults buttonDefaults() {
  return kPlace + kFont + kPicture +
         Defaults{{P::Caption, QString()},
                  {P::ButtonShape, 0},
                  {P::ButtonStyle, 0},
                  {P::BackColor, kButtonFace},
                  {P::ForeColor, kButtonText},
                  {P::GradientColor, kButtonFace},
                  {P::GradientMode, 0},
                  {P::PictureSize, 0},
                  {P::PictureAlign, 0},
                  {P::CaptionAlign, 2},
                  {P::CaptionStyle, 0},
                  {P::Mode, 0},
                  {P::Value, 0},
                  {P::CustomClick, false},
                  {P::ShowFocusRect, false},
                  {P::Enabled, true},
                  {P::HoverColorLocks, 3},
                  {P::HoverForeColor, kButtonText},
                  {P::HoverBackColor, kButtonFace},
                  {P::MousePointer, 0},
                  {P::MouseIcon, Picture()}};
}

Defaults pictureBoxDefaults() {
  return kPlace + kPicture +
         Defaults{{P::BackColor, kButtonFace},
                  {P::ForeColor, kButtonText},
                  {P::BackStyle, 1},
                  {P::BorderStyle, 0}};
}

Defaults rowsDefaults() {
  return kPlace + Defaults{{P::Text, QString()}, {P::ListIndex, -1}, {P::List, QStringList()}};
}

Defaults boxDefaults() {
  return kPlace + Defaults{{P::Caption, QString()}, {P::Value, 0}};
}

Defaults defaultsOf(Kind kind) {
  switch (kind) {
    case Kind::Window:
      return kPlace + kPicture + Defaults{{P::Caption, QString()}, {P::BackColor, Colour()}};
    case Kind::Label:
      return labelDefaults();
    case Kind::Button:
      return buttonDefaults();
    case Kind::PictureBox:
      return pictureBoxDefaults();
    case Kind::ImageBox:
      return kPlace + kPicture + Defaults{{P::Stretch, false}};
    case Kind::AnimatedFrame:
    case Kind::AlphaImage:
      return kPlace + kPicture;
    case Kind::ComboBox:
    case Kind::ListBox:
    case Kind::FileList:
    case Kind::FolderList:
      return rowsDefaults();
    case Kind::TextBox:
      return kPlace + Defaults{{P::Text, QString()}};
    case Kind::CheckBox:
    case Kind::OptionButton:
      return boxDefaults();
    case Kind::CommandButton:
      return kPlace + Defaults{{P::Caption, QString()}};
    case Kind::ImageSlot:
      return {{P::Name, StoredValue()}};
    case Kind::CoverIndex:
      return {{P::Value, 0}};
  }
  return {};
}

struct KindTable {
  Defaults defaults;
  std::array<std::int8_t, kPropertyCount> offsets;
};

using KindTables = std::array<KindTable, kKindCount>;

KindTables makeTables() {
  KindTables made;
  for (int k = 0; k < kKindCount; ++k) {
    KindTable& table = made[k];
    table.defaults = defaultsOf(static_cast<Kind>(k));
    table.offsets.fill(-1);
    for (std::size_t i = 0; i < table.defaults.size(); ++i) {
      const auto& [property, value] = table.defaults[i];
      require(typeOf(value) == propertyType(property), "a default is of its property's type");
      table.offsets[static_cast<std::size_t>(property)] = static_cast<std::int8_t>(i);
    }
  }
  return made;
}

// Made ahead: every reading and setting of a value asks them.
const KindTables kTables = makeTables();

const KindTable& tableOf(Kind kind) {
  return kTables[static_cast<std::size_t>(kind)];
}

}  // namespace

std::span<const PropertyDefault> propertiesOf(Kind kind) {
  return tableOf(kind).defaults;
}

int propertyOffset(Kind kind, Property property) {
  return tableOf(kind).offsets[static_cast<std::size_t>(property)];
}

}  // namespace veneerer
