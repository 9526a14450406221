// A folder that comes into being whole or not at all.
#pragma once

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>

#include "files/disk.h"
#include "files/replacefiles.h"

namespace veneerer {

/// Makes a folder with all that is in it beside its place, under a name that can't be foreseen, and gives it
/// its own name in the end. Until then the place is empty; what isn't finished is removed.
///
/// Each call throws ReplaceError, which names what couldn't be made.
class NewFolder {
public:
  /// Makes the folders above the place that aren't there, and removes what a killed program left over beside
  /// it. The disk must outlive this object.
  NewFolder(Disk& disk, const QString& path);
  ~NewFolder();
  NewFolder(const NewFolder&) = delete;
  NewFolder& operator=(const NewFolder&) = delete;

  // Names begin in the folder and have forward slashes: "images/Menu.bmp". Folders on the way are made.

  void makeFolder(const QString& name);
  void create(const QString& name, const QByteArray& bytes);
  /// Writes behind the end of a file that was created here.
  void append(const QString& name, const QByteArray& bytes);
  /// See Disk::copy.
  void copy(const QString& from, const QString& name, qint64 mostBytes);

  /// Gives the folder its name, unless something bears it meanwhile. Nothing is to be called any more.
  void putInPlace();

private:
  struct Made {
    QString path;
    bool isFolder;
  };

  QString pathOf(const QString& name) const { return temporary_ + u'/' + name; }
  void makeFolderOf(const QString& name);
  void makeMissing(const QString& folder);
  void make(const QString& folder, const QString& name);
  void madeFile(const QString& name, const QString& reason);
  void removeMade();

  Disk& disk_;
  QString path_;
  QString temporary_;
  QList<Made> made_;       ///< in this order
  QSet<QString> folders_;  ///< the names of those that were made
};

}  // namespace veneerer
