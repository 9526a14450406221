#include "comparison/skinfiles.h"

#include "design/design.h"
#include "files/foldertree.h"
#include "records/coverfile.h"
#include "records/layoutreader.h"
#include "skin/lists.h"

namespace veneerer {

namespace {

constexpr qsizetype kMostEntries = 100'000;

}  // namespace

SkinFiles::SkinFiles(const SkinFolder& folder, const Screen& screen) : folder_(folder), screen_(screen) {
  applyBuiltInDesign(state_);
  fillFirstLists(state_);
  fillOtherLists(state_);
  for (const SaveEntry& entry : saveOrder()) {
    const Layout layout = entry.layout(state_);
    if (layout.isEmpty()) continue;
    layouts_.insert(layout.fileName(), entry.layout);
    layouts_.insert(savedName(entry, layout), entry.layout);
  }
  for (const TreeFile& file : folderTree(folder.path(), kMostEntries).files)
    paths_.insert(file.name, file.path);
}

QStringList SkinFiles::names() const {
  return paths_.keys() + layouts_.keys();
}

bool SkinFiles::isRecord(const QString& name) const {
  const bool isCover = !name.contains(u'/') && name.endsWith(QStringLiteral(".cov"), Qt::CaseInsensitive);
  return isCover || layouts_.contains(name);
}

Layout SkinFiles::layoutOf(const QString& name, const QByteArray& bytes) {
  if (const MakeLayout make = layouts_.value(name)) return make(state_);
  return coverFile(state_, name, lastCoverOf(bytes));
}

std::optional<QByteArray> SkinFiles::bytes(const QString& name) const {
  return recordFileIfThere(folder_.file(name));
}

RecordText SkinFiles::text(const QString& name, const QByteArray& bytes) {
  Loading loading{state_, folder_, screen_};
  return readText(layoutOf(name, bytes), bytes, loading);
}

}  // namespace veneerer
