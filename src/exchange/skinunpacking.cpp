#include "exchange/skinunpacking.h"

#include <QFileInfo>
#include <vector>

#include "exchange/entrynames.h"
#include "exchange/texts.h"
#include "exchange/zipreader.h"
#include "files/leftovers.h"
#include "files/newfolder.h"

namespace veneerer {

namespace {

/// Counts what comes out of the archive.
class Allowance {
public:
  explicit Allowance(const ExchangeLimits& limits) : limits_(limits) {}

  /// Why there are too many files, empty so long as there aren't.
  QString addFile() {
    if (++files_ <= limits_.files) return {};
    return ExchangeTexts::tr("the archive holds more than %1 files").arg(limits_.files);
  }
  QString addFolders(qsizetype folders) const {
    if (folders <= limits_.files) return {};
    return ExchangeTexts::tr("the archive holds more than %1 folders").arg(limits_.files);
  }
  // An archive may name one folder time after time.
  QString addEntries(std::size_t entries) const {
    if (entries <= 2 * static_cast<std::size_t>(limits_.files)) return {};
    return ExchangeTexts::tr("the archive holds more than %1 entries").arg(2 * limits_.files);
  }
  QString addBytes(qint64 bytes) {
    bytes_ += bytes;
    if (bytes_ <= limits_.bytes) return {};
    return ExchangeTexts::tr("the archive's files take more than %1 MiB")
        .arg(static_cast<double>(limits_.bytes) / (1024 * 1024));
  }

private:
  ExchangeLimits limits_;
  int files_ = 0;
  qint64 bytes_ = 0;
};

class SkinUnpacking {
public:
  SkinUnpacking(Disk& disk, const QString& archive, const QString& root, const GoOn& goOn,
                const ExchangeLimits& limits)
      : disk_(disk), root_(root), goOn_(goOn), limits_(limits), archive_(archive), zip_(archive) {}

  QString run() {
    lookAhead();
    if (names_.skin().isEmpty())
      throw ExchangeError(ExchangeTexts::tr("%1: the archive holds no Skin").arg(archive_));
    const QString skin = root_ + u'/' + names_.skin();
    if (QFileInfo::exists(skin) || QFileInfo(skin).isSymLink())
      throw ExchangeError(
          ExchangeTexts::tr("%1: %2: a Skin of this name is there already").arg(archive_, names_.skin()));
    try {
      write(skin);
    } catch (const ReplaceError& error) {
      throw ExchangeError(
          ExchangeTexts::tr("%1: nothing is unpacked: %2").arg(archive_, QString::fromUtf8(error.what())));
    }
    return names_.skin();
  }

private:
  void require(const QString& fault) const {
    if (!fault.isEmpty()) throw zip_.fault(fault);
  }

  // One step for each entry, and the same again as it is written.
  void step() {
    const int entries = static_cast<int>(places_.size());
    const int total = isLookedAt_ ? entries : std::max(zip_.entriesTold(), entries);
    tellStep(goOn_, isLookedAt_ ? entries + done_ : done_, 2 * total, zip_.name());
  }

  void readCounted(Allowance& allowance, const ZipReader::Take& take) {
    zip_.read([&](const QByteArray& bytes) {
      require(allowance.addBytes(bytes.size()));
      step();
      take(bytes);
    });
  }

  void lookAhead() {
    Allowance allowance(limits_);
    for (bool isThere = zip_.first(); isThere; isThere = zip_.next(), ++done_) {
      step();
      EntryPlace place;
      require(names_.add(zip_.name(), place));
      require(allowance.addFolders(names_.folders()));
      if (!place.isFolder) require(allowance.addFile());
      zip_.refuseOdd(place.isFolder);
      readCounted(allowance, [&](const QByteArray&) {
        if (place.isFolder) require(ExchangeTexts::tr("the folder holds bytes like a file"));
      });
      places_.push_back(place);
      require(allowance.addEntries(places_.size()));
    }
  }

  void write(const QString& skin) {
    NewFolder folder(disk_, skin);
    Allowance allowance(limits_);
    isLookedAt_ = true;
    done_ = 0;
    for (bool isThere = zip_.first(); isThere && done_ < int(places_.size());
         isThere = zip_.next(), ++done_) {
      step();
      writeEntry(folder, places_[static_cast<std::size_t>(done_)], allowance);
    }
    tellStep(goOn_, 2 * done_, 2 * done_, QString());
    folder.putInPlace();
  }

  void writeEntry(NewFolder& folder, const EntryPlace& place, Allowance& allowance) {
    // A killed save's; the next one would remove it.
    if (isLeftOver(place.name.section(u'/', -1))) return;
    if (place.isFolder && !place.name.isEmpty()) folder.makeFolder(place.name);
    if (place.isFolder) return;
    folder.create(place.name, {});
    readCounted(allowance, [&](const QByteArray& bytes) { folder.append(place.name, bytes); });
  }

  Disk& disk_;
  QString root_;
  const GoOn& goOn_;
  ExchangeLimits limits_;
  QString archive_;
  ZipReader zip_;
  EntryNames names_;
  std::vector<EntryPlace> places_;  ///< of the entries, in their order
  bool isLookedAt_ = false;
  int done_ = 0;
};

}  // namespace

QString unpackSkin(Disk& disk, const QString& archive, const QString& skinsRoot, const GoOn& goOn,
                   const ExchangeLimits& limits) {
  return SkinUnpacking(disk, archive, skinsRoot, goOn, limits).run();
}

}  // namespace veneerer
