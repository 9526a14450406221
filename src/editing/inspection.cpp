#include "editing/inspection.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <span>

#include "editing/texts.h"
#include "elements/kinds.h"
#include "elements/numbers.h"

namespace veneerer {

namespace {

using P = Property;

// What no Skin stores, or no single element has by itself.
constexpr P kPassedOver[] = {P::StackOrder,     P::PictureAlign,   P::CaptionAlign,  P::CaptionStyle,
                             P::Mode,           P::CustomClick,    P::ShowFocusRect, P::HoverColorLocks,
                             P::HoverForeColor, P::HoverBackColor, P::MousePointer,  P::MouseIcon,
                             P::Enabled,        P::BorderStyle,    P::Stretch,       P::List,
                             P::Value};

bool isAmong(std::span<const Property> properties, Property property) {
  return std::ranges::find(properties, property) != properties.end();
}

bool isAcross(Property property) {
  return property == P::Left || property == P::Width;
}

bool isLength(Property property) {
  return isAcross(property) || property == P::Top || property == P::Height;
}

double twipsPerPixel(Property property, const Screen& screen) {
  return isAcross(property) ? screen.twipsPerPixelX() : screen.twipsPerPixelY();
}

std::optional<Value> typedColour(const QString& text) {
  if (text.startsWith(u'#')) {
    const QColor colour(text);
    return text.size() == 7 && colour.isValid() ? std::optional<Value>(Colour::of(colour)) : std::nullopt;
  }
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  return isNumber ? std::optional<Value>(Colour(number)) : std::nullopt;
}

std::optional<float> typedSingle(const QString& text) {
  bool isNumber = false;
  const float number = text.toFloat(&isNumber);
  return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

// As valueText() tells it, or in English.
std::optional<Value> typedTruth(const QString& text) {
  const auto is = [&](const QString& word) { return text.compare(word, Qt::CaseInsensitive) == 0; };
  if (is(valueText(true)) || is(QStringLiteral("yes"))) return true;
  if (is(valueText(false)) || is(QStringLiteral("no"))) return false;
  return std::nullopt;
}

}  // namespace

std::vector<Property> inspectedProperties(const std::vector<Element*>& elements) {
  std::vector<Property> properties;
  std::set<Kind> seen;
  for (const Element* element : elements) {
    if (!seen.insert(element->kind()).second) continue;
    for (const PropertyDefault& each : propertiesOf(element->kind()))
      if (!isAmong(kPassedOver, each.property) && !isAmong(properties, each.property))
        properties.push_back(each.property);
  }
  return properties;
}

QString valueText(const Value& value) {
  if (const auto* truth = std::get_if<bool>(&value))
    return *truth ? EditingTexts::tr("Yes") : EditingTexts::tr("No");
  if (const auto* whole = std::get_if<std::int32_t>(&value)) return QString::number(*whole);
  if (const auto* single = std::get_if<float>(&value)) return singleText(*single);
  if (const auto* text = std::get_if<QString>(&value)) return *text;
  if (const auto* list = std::get_if<QStringList>(&value)) return list->join(u'|');
  if (const auto* stored = std::get_if<StoredValue>(&value)) return stored->text();
  if (const auto* picture = std::get_if<Picture>(&value))
    return picture->isDrawn() ? EditingTexts::tr("(drawn)") : picture->path();
  const Colour colour = std::get<Colour>(value);
  return colour.plain() == colour ? colour.toQColor().name().toUpper() : QString::number(colour.number());
}

std::optional<Value> typedValue(Property property, const QString& text) {
  const QString bare = text.trimmed();
  switch (propertyType(property)) {
    case ValueType::Truth:
      return typedTruth(bare);
    case ValueType::Whole: {
      bool isNumber = false;
      const int number = bare.toInt(&isNumber);
      return isNumber ? std::optional<Value>(std::int32_t(number)) : std::nullopt;
    }
    case ValueType::Single: {
      const std::optional<float> number = typedSingle(bare);
      return number ? std::optional<Value>(*number) : std::nullopt;
    }
    case ValueType::Colour:
      return typedColour(bare);
    case ValueType::Text:
      return text;
    default:
      return std::nullopt;
  }
}

QString pixelText(const Element& element, Property property, const Screen& screen) {
  if (!isLength(property)) return {};
  return singleText(static_cast<float>(element.as<float>(property) / twipsPerPixel(property, screen)));
}

std::optional<Value> typedPixels(Property property, const QString& text, const Screen& screen) {
  const std::optional<float> pixels = typedSingle(text.trimmed());
  if (!pixels || !isLength(property)) return std::nullopt;
  return static_cast<float>(*pixels * twipsPerPixel(property, screen));
}

}  // namespace veneerer
