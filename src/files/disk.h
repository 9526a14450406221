// Every operation that changes the disk. There is one place for them, so that a test can make each fail in
// turn and see what is left behind.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>

#include "files/filestamp.h"

namespace veneerer {

/// The disk as it is; a test derives from it to let operations fail. One serves many threads.
class Disk {
public:
  virtual ~Disk() = default;

  /// Whether its folder lets a new file be put under that path, in the place of the one that may be there.
  virtual bool canReplace(const QString& path);

  // Each call returns why it failed ("No space left on device"), and nothing when it was done.

  /// Makes a new file of these bytes. Never writes through a link nor over something that is there. Where the
  /// file `like` is told and there, the new one gets its permissions and, as far as that is allowed, its
  /// owner.
  [[nodiscard]] virtual QString create(const QString& path, const QByteArray& bytes,
                                       const QString& like = {});

  /// Writes the bytes behind the end of a plain file that is there. Never writes through a link.
  [[nodiscard]] virtual QString append(const QString& path, const QByteArray& bytes);

  /// Makes a new file of the bytes of a plain one, of which there may be so many. Its permissions are those
  /// of the other one, but nobody's identity goes along, and its owner may always read and write it. Follows
  /// no link at either end.
  [[nodiscard]] virtual QString copy(const QString& from, const QString& to, qint64 mostBytes);

  /// Writes the bytes into a plain file that is there, in place.
  [[nodiscard]] virtual QString overwrite(const QString& path, const QByteArray& bytes);

  /// Gives a file another name on the same disk, at once for everybody who looks; what bore the name is gone.
  [[nodiscard]] virtual QString rename(const QString& from, const QString& to);

  /// Gives a file or folder a name on the same disk that nothing bears yet.
  [[nodiscard]] virtual QString renameToNew(const QString& from, const QString& to);

  /// Removes a file, or the link itself.
  [[nodiscard]] virtual QString remove(const QString& path);

  /// Makes a folder with all those above it; one that is there already is fine.
  [[nodiscard]] virtual QString makeFolder(const QString& path);

  /// Makes one folder where nothing is yet.
  [[nodiscard]] virtual QString makeNewFolder(const QString& path);

  /// Removes a folder that nothing is in.
  [[nodiscard]] virtual QString removeFolder(const QString& path);

  /// What the file of that path was, links resolved, when it was written here last: who watches the disk
  /// tells our own writing by it. Not there for one that wasn't.
  FileStamp written(const QString& path) const;

private:
  void note(const QString& path);

  mutable QMutex lock_;
  QHash<QString, FileStamp> written_;  ///< by the path, links resolved
};

}  // namespace veneerer
