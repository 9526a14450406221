#include "files/foldertree.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "files/leftovers.h"
#include "files/texts.h"

namespace veneerer {

namespace {

class TreeWalk {
public:
  TreeWalk(const QString& folder, qsizetype mostEntries)
      : root_(QFileInfo(folder).canonicalFilePath() + u'/'), mostEntries_(mostEntries) {}

  FolderTree run() {
    if (root_.size() > 1) walk({});
    std::ranges::sort(tree_.folders);
    std::ranges::sort(tree_.files, {}, &TreeFile::name);
    std::ranges::sort(tree_.leftOut, {}, &LeftOut::name);
    return std::move(tree_);
  }

private:
  void walk(const QString& prefix) {
    constexpr auto kAll = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& entry : QDir(root_ + prefix).entryInfoList(kAll, QDir::Unsorted)) {
      if (isLeftOver(entry.fileName())) continue;
      tree_.isCut = tree_.isCut || ++entries_ > mostEntries_;
      if (tree_.isCut) return;
      take(entry, prefix + entry.fileName());
    }
  }

  void take(const QFileInfo& entry, const QString& name) {
    const QString reason = reasonAgainst(entry);
    if (!reason.isEmpty()) {
      tree_.leftOut.append({name, reason});
    } else if (entry.isDir()) {
      tree_.folders << name;
      walk(name + u'/');
    } else {
      tree_.files.append({name, entry.canonicalFilePath(), entry.size()});
    }
  }

  QString reasonAgainst(const QFileInfo& entry) const {
    if (entry.isSymLink()) return reasonAgainstLink(entry);
    if (!entry.exists()) return FileTexts::tr("a name that can't be read");
    if (entry.isDir())
      return entry.isReadable() && entry.isExecutable() ? QString()
                                                        : FileTexts::tr("a folder that may not be read");
    return entry.isFile() ? QString() : FileTexts::tr("no file");
  }

  QString reasonAgainstLink(const QFileInfo& link) const {
    const QString target = link.canonicalFilePath();
    if (target.isEmpty()) return FileTexts::tr("a link that leads nowhere");
    if (!target.startsWith(root_)) return FileTexts::tr("a link that leads out of the folder");
    return link.isFile() ? QString() : FileTexts::tr("a link to what is no file");
  }

  QString root_;  ///< ends in a slash
  qsizetype mostEntries_;
  qsizetype entries_ = 0;
  FolderTree tree_;
};

}  // namespace

qint64 FolderTree::bytes() const {
  qint64 sum = 0;
  for (const TreeFile& file : files) sum += file.bytes;
  return sum;
}

FolderTree folderTree(const QString& folder, qsizetype mostEntries) {
  return TreeWalk(folder, mostEntries).run();
}

}  // namespace veneerer
