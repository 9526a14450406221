// Composes one record file in memory, value by value; each value ends its line with CR LF.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>

#include "forms/imagenames.h"

namespace veneerer {

class RecordWriter {
public:
  /// The characters exactly, in code page 1252.
  void writeText(const QString& text);
  /// Integer and Long: a sign column, the digits, one blank.
  void writeWhole(std::int32_t number);
  /// The same around the shortest form of up to 7 significant digits.
  void writeSingle(float number);
  /// In the kind that the value holds.
  void writeStored(const StoredValue& value);

  const QByteArray& bytes() const { return bytes_; }

private:
  void writeNumber(const QString& digits);

  QByteArray bytes_;
};

}  // namespace veneerer
