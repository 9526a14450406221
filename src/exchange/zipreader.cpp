#include "exchange/zipreader.h"

#include <quazip/quazipfile.h>
#include <sys/stat.h>

#include "elements/printable.h"
#include "exchange/texts.h"

namespace veneerer {

namespace {

constexpr qint64 kPiece = 1024 * 1024;  // bytes

constexpr int kMostShown = 260;  // code points of an entry's name

constexpr int kStored = 0;
constexpr int kDeflated = 8;

/// Whether the permissions, if the archive has some, tell of what is due.
bool isOfKind(const QuaZipFileInfo64& entry, bool isFolder) {
  const unsigned kind = (entry.externalAttr >> 16) & S_IFMT;
  return kind == 0 || kind == (isFolder ? S_IFDIR : S_IFREG);
}

}  // namespace

ZipReader::ZipReader(const QString& archive) : archive_(archive), zip_(archive) {
  // Names that aren't marked as UTF-8 mostly are all the same.
  zip_.setFileNameCodec("UTF-8");
  if (!zip_.open(QuaZip::mdUnzip))
    throw ExchangeError(ExchangeTexts::tr("%1: the file is no zip archive, or damaged").arg(archive_));
}

bool ZipReader::first() {
  return zip_.getEntriesCount() > 0 && lookAt(zip_.goToFirstFile());
}

bool ZipReader::next() {
  return lookAt(zip_.goToNextFile());
}

bool ZipReader::lookAt(bool isThere) {
  if (zip_.getZipError() != 0 || (isThere && !zip_.getCurrentFileInfo(&info_))) throw damaged();
  return isThere;
}

ExchangeError ZipReader::fault(const QString& reason) const {
  return ExchangeError(QStringLiteral("%1: %2: %3").arg(archive_, excerpt(info_.name, kMostShown), reason));
}

ExchangeError ZipReader::damaged() const {
  return ExchangeError(ExchangeTexts::tr("%1: the archive is damaged").arg(archive_));
}

void ZipReader::refuseOdd(bool isFolder) const {
  if (info_.isSymbolicLink()) throw fault(ExchangeTexts::tr("the entry is a link"));
  if (!isOfKind(info_, isFolder)) throw fault(ExchangeTexts::tr("the entry is no plain file and no folder"));
  if (info_.isEncrypted()) throw fault(ExchangeTexts::tr("the entry is encrypted"));
  if (info_.method != kStored && info_.method != kDeflated)
    throw fault(ExchangeTexts::tr("the entry is packed in a way that can't be read"));
}

void ZipReader::read(const Take& take) {
  QuaZipFile entry(&zip_);
  if (!entry.open(QIODevice::ReadOnly)) throw fault(ExchangeTexts::tr("the entry is damaged"));
  quint64 total = 0;
  for (QByteArray bytes = entry.read(kPiece); !bytes.isEmpty(); bytes = entry.read(kPiece)) {
    total += static_cast<quint64>(bytes.size());
    take(bytes);
  }
  // The check sum is compared as the entry is closed, and only of one that has as many bytes as it says.
  const bool isWhole = entry.getZipError() == 0 && total == info_.uncompressedSize;
  entry.close();
  if (!isWhole || entry.getZipError() != 0) throw fault(ExchangeTexts::tr("the entry is damaged"));
}

}  // namespace veneerer
