// A new file as a device: what is written to it goes to the disk piece by piece.
#pragma once

#include <QIODevice>

#include "files/disk.h"

namespace veneerer {

class DiskDevice : public QIODevice {
public:
  /// Of a file that was created before and is written from its end on. The disk must outlive the device.
  DiskDevice(Disk& disk, const QString& path) : disk_(disk), path_(path) {}

  bool isSequential() const override { return true; }
  void close() override;
  /// Why something couldn't be written, empty so long as nothing is wrong.
  const QString& fault() const { return fault_; }

protected:
  qint64 readData(char* data, qint64 most) override;
  qint64 writeData(const char* data, qint64 size) override;

private:
  void flush();

  Disk& disk_;
  QString path_;
  QByteArray pending_;
  QString fault_;
};

}  // namespace veneerer
