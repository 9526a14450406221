// A disk whose operations fail when a test wants them to.
#pragma once

#include <atomic>

#include "files/disk.h"

namespace veneerer::test {

/// The real disk until it is told to fail.
class FailingDisk : public Disk {
public:
  /// Which of the operations from now on fails, counted from 1; 0 for none.
  void failAt(int operation) {
    operations = 0;
    failing_ = operation;
    isKilled_ = false;
  }
  /// From that operation on all fail, as if the program had been killed there.
  void killAt(int operation) {
    failAt(operation);
    isKilled_ = true;
  }

  std::atomic<int> operations = 0;  ///< that would have changed the disk
  bool isFolderOpen = true;         ///< whether folders take new files

  bool canReplace(const QString& path) override { return isFolderOpen && Disk::canReplace(path); }
  QString create(const QString& path, const QByteArray& bytes, const QString& like) override {
    return fails() ? reason() : Disk::create(path, bytes, like);
  }
  QString append(const QString& path, const QByteArray& bytes) override {
    return fails() ? reason() : Disk::append(path, bytes);
  }
  QString copy(const QString& from, const QString& to, qint64 mostBytes) override {
    return fails() ? reason() : Disk::copy(from, to, mostBytes);
  }
  QString overwrite(const QString& path, const QByteArray& bytes) override {
    return fails() ? reason() : Disk::overwrite(path, bytes);
  }
  QString rename(const QString& from, const QString& to) override {
    return fails() ? reason() : Disk::rename(from, to);
  }
  QString renameToNew(const QString& from, const QString& to) override {
    return fails() ? reason() : Disk::renameToNew(from, to);
  }
  QString remove(const QString& path) override { return fails() ? reason() : Disk::remove(path); }
  QString makeFolder(const QString& path) override { return fails() ? reason() : Disk::makeFolder(path); }
  QString makeNewFolder(const QString& path) override {
    return fails() ? reason() : Disk::makeNewFolder(path);
  }
  QString removeFolder(const QString& path) override { return fails() ? reason() : Disk::removeFolder(path); }

private:
  static QString reason() { return "made to fail"; }
  bool fails() {
    const int operation = ++operations;
    return failing_ > 0 && (isKilled_ ? operation >= failing_ : operation == failing_);
  }

  int failing_ = 0;
  bool isKilled_ = false;
};

}  // namespace veneerer::test
