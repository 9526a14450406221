// What tells whether a file was written since somebody looked.
#pragma once

#include <QString>

namespace veneerer {

struct FileStamp {
  qint64 bytes = -1;    ///< -1 for a file that isn't there
  qint64 modified = 0;  ///< milliseconds since the epoch

  bool isThere() const { return bytes >= 0; }
  bool operator==(const FileStamp&) const = default;
};

/// Of what the path leads to, links followed.
FileStamp stampOf(const QString& path);

/// The same of a plain file; of anything else as if it weren't there.
FileStamp stampOfPlain(const QString& path);

}  // namespace veneerer
