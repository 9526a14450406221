// Where a Skin lies and how its references are found. A path is rebuilt from the program's folder and the
// Skin's name at each use; none is stored.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include "platform/platform.h"

namespace veneerer {

/// The folder of all Skins beside the program. It goes by the names "Skins" and "skins", which are one
/// folder.
class SkinsRoot {
public:
  explicit SkinsRoot(const ProgramFolder& program);

  const QString& path() const { return path_; }
  /// The names of the Skins, sorted.
  QStringList skins() const;

private:
  QString path_;
};

/// The longest image reference, characters: no path on any system is longer.
inline constexpr int kLongestReference = 4096;

/// One Skin's folder. Cheap to make; it remembers folder listings for as long as it lives, so make a new one
/// for each load or command.
class SkinFolder {
public:
  SkinFolder(const ProgramFolder& program, const QString& skinName);
  /// The Skin's folder at a path of its own.
  explicit SkinFolder(const QString& path) : path_(path) {}

  const QString& path() const { return path_; }
  bool exists() const;

  /// The path of a record file or a cover file in exactly that spelling, whether or not it is there.
  QString file(const QString& name) const;

  /// The plain file that an image reference ("\images\menu.bmp") leads to: the exact spelling first, then
  /// without regard to case. Both kinds of slash separate. Empty when there is no such plain file
  /// or the reference is longer than kLongestReference. A reference may lead out of the folder.
  QString resolve(const QString& reference) const;

  /// The names of all that stands in that folder, in no order. Of names that differ in case alone there is
  /// one.
  QStringList names(const QString& folder) const { return listing(folder).values(); }

  /// True when the path, links resolved, lies inside this folder: only such a file may be deleted or
  /// overwritten for a reference's sake.
  bool contains(const QString& path) const;

  /// The cover files (*.cov) by name, without regard to case.
  QStringList coverFiles() const;

private:
  using Names = QHash<QString, QString>;  ///< by their folded case

  const Names& listing(const QString& folder) const;
  QString above(const QString& folder) const;
  QString findIgnoringCase(const QStringList& parts) const;

  QString path_;
  mutable QHash<QString, Names> listings_;  ///< by the folder's path, links resolved
};

/// The bare name of a file whose path may use either kind of slash.
QString bareFileName(const QString& path);

}  // namespace veneerer
