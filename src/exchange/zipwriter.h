// Writes a zip archive, entry by entry.
#pragma once

#include <quazip/quazip.h>

#include "exchange/diskdevice.h"
#include "exchange/longwork.h"
#include "files/foldertree.h"

namespace veneerer {

/// Why an entry couldn't be written, in words that may follow its name and a colon.
class ZipFault : public std::runtime_error {
public:
  explicit ZipFault(const QString& what) : std::runtime_error(what.toStdString()) {}
};

class ZipWriter {
public:
  /// Into that new file, which was created before. Throws ZipFault, as do the calls below.
  ZipWriter(Disk& disk, const QString& path);

  /// The name ends in a slash. With the time of that folder.
  void addFolder(const QString& name, const QString& path);
  /// With the bytes and the time of that plain file, of which there are at most so many bytes. `step` is
  /// called once for each piece.
  void addFile(const QString& name, const TreeFile& file, const std::function<void()>& step);
  /// Ends the archive.
  void finish();

private:
  void requireFine(bool isFine) const;

  DiskDevice device_;
  QuaZip zip_;
};

}  // namespace veneerer
