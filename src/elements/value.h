// A property's value when it travels without its element's kind: in a notice, from a record file, to a dump.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <variant>

#include "elements/colour.h"
#include "elements/property.h"
#include "images/picture.h"

namespace veneerer {

/// A value that a loader kept as it was read: nothing, a text, or a number.
class StoredValue {
public:
  StoredValue() = default;
  StoredValue(const QString& text) : value_(text) {}  // NOLINT(google-explicit-constructor): names are texts
  explicit StoredValue(double number) : value_(number) {}

  bool isNumber() const { return std::holds_alternative<double>(value_); }
  double number() const { return std::get<double>(value_); }
  /// The value as a text; a number in its plain form.
  QString text() const;
  bool isEmpty() const { return !isNumber() && std::get<QString>(value_).isEmpty(); }

  bool operator==(const StoredValue&) const = default;

private:
  std::variant<QString, double> value_;
};

/// Whole numbers are signed 32-bit, fractions Singles.
using Value = std::variant<bool, std::int32_t, float, QString, QStringList, Picture, StoredValue, Colour>;

inline ValueType typeOf(const Value& value) {
  return static_cast<ValueType>(value.index());
}

}  // namespace veneerer
