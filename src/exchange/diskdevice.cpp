#include "exchange/diskdevice.h"

namespace veneerer {

namespace {

constexpr qsizetype kPiece = 1024 * 1024;  // bytes

}  // namespace

void DiskDevice::close() {
  flush();
  QIODevice::close();
}

qint64 DiskDevice::readData(char* /*data*/, qint64 /*most*/) {
  return -1;
}

qint64 DiskDevice::writeData(const char* data, qint64 size) {
  if (!fault_.isEmpty()) return -1;
  pending_.append(data, size);
  if (pending_.size() >= kPiece) flush();
  return fault_.isEmpty() ? size : -1;
}

void DiskDevice::flush() {
  if (pending_.isEmpty() || !fault_.isEmpty()) return;
  fault_ = disk_.append(path_, pending_);
  pending_.clear();
}

}  // namespace veneerer
