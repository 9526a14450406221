// Walks a layout over a file's bytes and fills the elements.
#pragma once

#include <QByteArray>
#include <QString>

#include "records/layout.h"

namespace veneerer {

/// Reads the file's values into the elements, row by row. A malformed value raises RecordError, unless the
/// layout says otherwise. Returns the message with which a layout that reports its failure ended, else an
/// empty text. Nothing that was read before a failure is rolled back.
QString readRecords(const Layout& layout, const QByteArray& bytes, Loading& loading);

/// The same for the file of that path; a file that isn't there changes nothing.
QString readRecordFile(const Layout& layout, const QString& path, Loading& loading);

}  // namespace veneerer
