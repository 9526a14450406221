// Reads a zip archive that may come from anybody, entry by entry.
#pragma once

#include <quazip/quazip.h>
#include <quazip/quazipfileinfo.h>

#include <functional>

#include "exchange/longwork.h"

namespace veneerer {

class ZipReader {
public:
  /// What is made of the bytes of an entry, as they come.
  using Take = std::function<void(const QByteArray& bytes)>;

  /// The archive's file. Throws ExchangeError, as do the calls below, each with the archive's name and, where
  /// one is to blame, the entry's.
  explicit ZipReader(const QString& archive);

  /// How many entries the archive says it has, which may be wrong.
  int entriesTold() const { return zip_.getEntriesCount(); }
  /// Goes to the first entry; false when there is none.
  bool first();
  /// Goes to the next one; false behind the last.
  bool next();
  /// The current entry's name, as the archive has it.
  const QString& name() const { return info_.name; }

  /// Throws for an entry that is no plain file and no folder, encrypted, or packed in a way of its own.
  void refuseOdd(bool isFolder) const;
  /// Unpacks the current entry. Throws where it is damaged.
  void read(const Take& take);

  /// What can be said against the current entry.
  ExchangeError fault(const QString& reason) const;

private:
  bool lookAt(bool isThere);
  ExchangeError damaged() const;

  QString archive_;
  mutable QuaZip zip_;
  QuaZipFileInfo64 info_;
};

}  // namespace veneerer
