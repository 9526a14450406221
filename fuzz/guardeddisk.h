// The disk for runs of random actions: nothing outside of one folder is ever changed.
#pragma once

#include <QDir>
#include <atomic>

#include "files/disk.h"

namespace veneerer::fuzz {

class GuardedDisk : public Disk {
public:
  explicit GuardedDisk(const QString& folder) : inside_(folder + u'/') {}

  /// Whether something may have changed since it was made.
  bool isChanged() const { return isChanged_; }

  bool canReplace(const QString& path) override { return isInside(path) && Disk::canReplace(path); }
  QString create(const QString& path, const QByteArray& bytes, const QString& like) override {
    return mayChange(path) ? Disk::create(path, bytes, like) : refusal();
  }
  QString append(const QString& path, const QByteArray& bytes) override {
    return mayChange(path) ? Disk::append(path, bytes) : refusal();
  }
  QString copy(const QString& from, const QString& to, qint64 mostBytes) override {
    return mayChange(to) ? Disk::copy(from, to, mostBytes) : refusal();
  }
  QString overwrite(const QString& path, const QByteArray& bytes) override {
    return mayChange(path) ? Disk::overwrite(path, bytes) : refusal();
  }
  QString rename(const QString& from, const QString& to) override {
    return mayChange(from) && mayChange(to) ? Disk::rename(from, to) : refusal();
  }
  QString renameToNew(const QString& from, const QString& to) override {
    return mayChange(from) && mayChange(to) ? Disk::renameToNew(from, to) : refusal();
  }
  QString remove(const QString& path) override { return mayChange(path) ? Disk::remove(path) : refusal(); }
  QString makeFolder(const QString& path) override {
    return mayChange(path) ? Disk::makeFolder(path) : refusal();
  }
  QString makeNewFolder(const QString& path) override {
    return mayChange(path) ? Disk::makeNewFolder(path) : refusal();
  }
  QString removeFolder(const QString& path) override {
    return mayChange(path) ? Disk::removeFolder(path) : refusal();
  }

private:
  static QString refusal() { return QStringLiteral("it lies outside of the folder of this run"); }
  bool isInside(const QString& path) const { return QDir::cleanPath(path).startsWith(inside_); }
  bool mayChange(const QString& path) {
    if (!isInside(path)) return false;
    isChanged_ = true;
    return true;
  }

  QString inside_;
  std::atomic<bool> isChanged_ = false;
};

}  // namespace veneerer::fuzz
