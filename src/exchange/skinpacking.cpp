#include "exchange/skinpacking.h"

#include <QDir>
#include <QFileInfo>

#include "exchange/contents.h"
#include "exchange/entrynames.h"
#include "exchange/texts.h"
#include "exchange/zipwriter.h"
#include "files/leftovers.h"

namespace veneerer {

namespace {

ExchangeError notPacked(const QString& archive, const QString& entry, const QString& reason) {
  const QString place = entry.isEmpty() ? archive : archive + QStringLiteral(": ") + entry;
  return ExchangeError(QStringLiteral("%1: %2").arg(place, reason));
}

/// The archive while it is written beside its place.
class NewArchive {
public:
  NewArchive(Disk& disk, const QString& archive)
      : disk_(disk), archive_(archive), place_(QDir::cleanPath(QFileInfo(archive).absoluteFilePath())) {
    refuseWhatIsThere();
    removeAbandonedFiles(disk_, place_.path());
    const QString temporary = place_.path() + u'/' + temporaryName(place_.fileName());
    require(disk_.create(temporary, {}));
    temporary_ = temporary;
  }
  ~NewArchive() {
    if (!temporary_.isEmpty()) [[maybe_unused]]
      const QString stays = disk_.remove(temporary_);
  }
  NewArchive(const NewArchive&) = delete;
  NewArchive& operator=(const NewArchive&) = delete;

  const QString& temporary() const { return temporary_; }
  void putInPlace() {
    require(disk_.rename(temporary_, place_.filePath()));
    temporary_.clear();
  }

private:
  void require(const QString& reason) const {
    if (!reason.isEmpty()) throw notPacked(archive_, {}, reason);
  }
  void refuseWhatIsThere() const {
    if (place_.exists() && !place_.isFile())
      require(ExchangeTexts::tr("there is something under this name that is no file"));
    if (place_.exists() && !place_.isWritable()) require(ExchangeTexts::tr("the file may not be written"));
  }

  Disk& disk_;
  QString archive_;
  QFileInfo place_;
  QString temporary_;
};

class SkinPacking {
public:
  SkinPacking(const QString& skin, const QString& archive, FolderTree tree, const GoOn& goOn)
      : folder_(QFileInfo(skin).canonicalFilePath()), archive_(archive), tree_(std::move(tree)), goOn_(goOn) {
    // By the name that it is asked for, also where that is a link.
    top_ = QFileInfo(QDir::cleanPath(QFileInfo(skin).absoluteFilePath())).fileName();
  }

  // What no unpacking would take isn't packed.
  void refuseNames() const {
    EntryNames names;
    EntryPlace place;
    const auto take = [&](const QString& name) {
      const QString fault = name.contains(u'\\') ? ExchangeTexts::tr("the name holds a backslash")
                                                 : names.add(entryOf(name), place);
      if (!fault.isEmpty()) throw notPacked(archive_, entryOf(name), fault);
    };
    take({});
    for (const QString& folder : tree_.folders) take(folder + u'/');
    for (const TreeFile& file : tree_.files) take(file.name);
  }

  void writeTo(ZipWriter& zip) const {
    int done = 0;
    addFolder(zip, {});
    for (const QString& folder : tree_.folders) addFolder(zip, folder + u'/');
    for (const TreeFile& file : tree_.files) addFile(zip, file, done++);
    tellStep(goOn_, done, done, QString());
    doing({}, [&] { zip.finish(); });
  }

private:
  QString entryOf(const QString& name) const { return top_ + u'/' + name; }

  template <class Work>
  void doing(const QString& entry, const Work& work) const {
    try {
      work();
    } catch (const ZipFault& fault) {
      throw notPacked(archive_, entry, QString::fromUtf8(fault.what()));
    }
  }
  void addFolder(ZipWriter& zip, const QString& name) const {
    doing(entryOf(name), [&] { zip.addFolder(entryOf(name), folder_ + u'/' + name); });
  }
  void addFile(ZipWriter& zip, const TreeFile& file, int done) const {
    const auto step = [&] { tellStep(goOn_, done, static_cast<int>(tree_.files.size()), file.name); };
    step();
    doing(entryOf(file.name), [&] { zip.addFile(entryOf(file.name), file, step); });
  }

  QString folder_;
  QString archive_;
  QString top_;
  FolderTree tree_;
  const GoOn& goOn_;
};

}  // namespace

QList<LeftOut> packSkin(Disk& disk, const QString& skin, const QString& archive, const GoOn& goOn,
                        const ExchangeLimits& limits) {
  const FolderTree tree = contentsOf(skin, limits);
  const SkinPacking packing(skin, archive, tree, goOn);
  packing.refuseNames();
  NewArchive file(disk, archive);
  {
    ZipWriter zip(disk, file.temporary());
    packing.writeTo(zip);
  }
  file.putInPlace();
  return tree.leftOut;
}

}  // namespace veneerer
