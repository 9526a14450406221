// Values as texts that two values share only if they are the same.
#pragma once

#include "elements/kinds.h"

namespace veneerer::test {

/// Of a picture only whether there is one.
inline QString textOf(const Value& value) {
  struct Text {
    QString operator()(bool is) const { return is ? "true" : "false"; }
    QString operator()(std::int32_t number) const { return QString::number(number); }
    QString operator()(float number) const { return QString::number(number, 'g', 9); }
    QString operator()(const QString& text) const { return '"' + text + '"'; }
    QString operator()(const QStringList& rows) const { return '[' + rows.join('|') + ']'; }
    QString operator()(const Picture& picture) const { return picture.isNull() ? "none" : "a picture"; }
    QString operator()(const StoredValue& stored) const {
      return (stored.isNumber() ? '#' : '"') + stored.text();
    }
    QString operator()(Colour colour) const { return QString::number(colour.number()); }
  };
  return std::visit(Text(), value);
}

}  // namespace veneerer::test
