// Walks a layout over a file's bytes and fills the elements.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "records/layout.h"

namespace veneerer {

/// Whether a layout's own policy for failures counts, or every failure raises RecordError, as a check wants
/// it.
enum class Failures { ByLayout, AllFatal };

/// Reads the file's values into the elements, row by row. A malformed value raises RecordError, unless the
/// layout says otherwise. Returns the message with which a layout that reports its failure ended, else an
/// empty text. Nothing that was read before a failure is rolled back.
QString readRecords(const Layout& layout, const QByteArray& bytes, Loading& loading,
                    Failures failures = Failures::ByLayout);

/// The same for the file of that path; a file that isn't there changes nothing. Under a layout without lines
/// the file isn't even opened.
QString readRecordFile(const Layout& layout, const QString& path, Loading& loading);

/// Far more than any record file has; a stranger's may be endless.
inline constexpr qint64 kMostRecordBytes = 16LL * 1024 * 1024;

/// The whole record or cover file of that path; nothing when there is none of that name. Raises RecordError
/// when it can't be read, is no plain file, is larger than kMostRecordBytes, or is a link that leads out of
/// the folder that it stands in.
std::optional<QByteArray> recordFileIfThere(const QString& path);

/// The same; raises RecordError when it isn't there, too.
QByteArray recordFileBytes(const QString& path);

}  // namespace veneerer
