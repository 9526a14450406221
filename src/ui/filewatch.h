// Tells when other programs have written files.
#pragma once

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <chrono>
#include <functional>

#include "files/disk.h"

namespace veneerer {

/// How long a file must stand still before it is read again.
inline constexpr std::chrono::milliseconds kFileRest{300};

/// The system tells of the files and of their folders: a folder's news miss a file that is written in place,
/// and a file's news end when a paint program puts a new one in its place. Nothing is done while nothing is
/// told.
class FileWatch : public QObject {
  Q_OBJECT

public:
  /// What that disk wrote is no news; it must outlive the watch.
  explicit FileWatch(const Disk& disk, std::chrono::milliseconds rest = kFileRest);

  /// While the function says so, nothing is told.
  void holdWhile(std::function<bool()> isHeld) { isHeld_ = std::move(isHeld); }

  /// The files to be watched, full paths, whether or not they are there. What is new among them is known as
  /// it is now.
  void watch(const QSet<QString>& paths);

  /// Looks at all files: some disks tell nothing.
  void look();

Q_SIGNALS:
  /// These files are others than before, or gone or there anew, and have stood still since.
  void changed(const QSet<QString>& paths);

private:
  void lookAgain();
  bool hasSettled(const QString& path);
  void follow();

  const Disk& disk_;
  std::function<bool()> isHeld_;
  QFileSystemWatcher watcher_;
  QHash<QString, FileStamp> known_;
  QHash<QString, FileStamp> moving_;  ///< of what has changed, as it was seen last
  QTimer rest_;
};

}  // namespace veneerer
