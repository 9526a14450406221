#include "exchange/skincopy.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include "exchange/contents.h"
#include "exchange/texts.h"
#include "files/newfolder.h"
#include "skin/skinsaver.h"

namespace veneerer {

namespace {

/// The folder's real path, also where its last parts aren't there yet.
QString realPath(const QString& path) {
  const QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
  if (info.exists() || info.isRoot()) return info.canonicalFilePath();
  return realPath(info.path()) + u'/' + info.fileName();
}

void refuseWithin(const QString& from, const QString& to) {
  if ((realPath(to) + u'/').startsWith(realPath(from) + u'/'))
    throw ExchangeError(ExchangeTexts::tr("%1: the copy would lie within the Skin").arg(to));
}

class SkinCopy {
public:
  SkinCopy(NewFolder& folder, const GoOn& goOn, std::vector<NewFile> records, FolderTree tree,
           const CopyChanges& changes)
      : folder_(folder),
        goOn_(goOn),
        records_(std::move(records)),
        tree_(std::move(tree)),
        changes_(changes) {
    QSet<QString> names;
    for (const NewFile& file : records_) names.insert(file.name);
    tree_.files.removeIf([&](const TreeFile& file) { return names.contains(file.name); });
    total_ = static_cast<int>(records_.size()) + static_cast<int>(tree_.files.size());
  }

  void run() {
    for (const QString& name : std::as_const(tree_.folders)) folder_.makeFolder(name);
    for (const NewFile& file : records_) {
      step(file.name);
      folder_.create(file.name, file.bytes);
    }
    for (const TreeFile& file : std::as_const(tree_.files)) {
      step(file.name);
      copy(file);
    }
    tellStep(goOn_, total_, total_, QString());
    folder_.putInPlace();
  }

private:
  void copy(const TreeFile& file) {
    const auto stay = [&] { tellStep(goOn_, done_, total_, file.name); };
    std::optional<QByteArray> remade;
    if (changes_.remade) remade = changes_.remade(file, stay);
    if (remade)
      folder_.create(file.name, *remade);
    else
      folder_.copy(file.path, file.name, file.bytes);
  }
  void step(const QString& name) { tellStep(goOn_, done_++, total_, name); }

  NewFolder& folder_;
  const GoOn& goOn_;
  std::vector<NewFile> records_;
  FolderTree tree_;
  const CopyChanges& changes_;
  int done_ = 0;
  int total_ = 0;
};

}  // namespace

QList<LeftOut> copySkin(State& state, Disk& disk, const QString& from, const QString& to, const GoOn& goOn,
                        const ExchangeLimits& limits, const CopyChanges& changes) {
  refuseWithin(from, to);
  const FolderTree tree = contentsOf(from, limits);
  try {
    NewFolder folder(disk, to);
    SkinCopy(folder, goOn, composedRecords(state, changes.dress), tree, changes).run();
  } catch (const ReplaceError& error) {
    throw ExchangeError(
        ExchangeTexts::tr("%1: no copy is made: %2").arg(to, QString::fromUtf8(error.what())));
  }
  return tree.leftOut;
}

}  // namespace veneerer
