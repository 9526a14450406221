// A record file's values as they stand, for checks that the grammar has already lost the answer to.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "records/layout.h"
#include "records/recordreader.h"

namespace veneerer {

/// One value of a file, the row of the layout that it was read for, and where it stood.
struct RawValue {
  const Row* row = nullptr;
  RecordValue value;
  int line = 0;            ///< counted from 1
  QString text;            ///< the whole of that line
  bool startsLine = true;  ///< false behind a comma
  bool endsLine = true;    ///< false ahead of a comma
};

/// The values of the rows that a load has read; rowLines as it left them in Loading. The layout must outlive
/// them.
std::vector<RawValue> rawValues(const Layout& layout, const std::vector<int>& rowLines,
                                const QByteArray& bytes);

/// How many lines the file has.
int lineCount(const QByteArray& bytes);

/// The value as a text field takes it; empty for one that no field takes.
QString valueText(const RecordValue& value);

QString withoutLeadingBlanks(const QString& text);

}  // namespace veneerer
