#include "designer/copiedpictures.h"

#include <QFileInfo>
#include <QSet>

#include "designer/texts.h"
#include "files/plainfile.h"
#include "records/writefiles.h"

namespace veneerer {

namespace {

/// The folder of images by the name that it bears.
QString imagesName(const SkinFolder& skin) {
  const QString usual = QStringLiteral("images");
  QString found = usual;
  for (const QString& name : skin.names(skin.path())) {
    if (name == usual) return usual;
    if (name.compare(usual, Qt::CaseInsensitive) == 0) found = name;
  }
  return found;
}

/// A reference with a comma or a quote in it would spoil the record file that holds it.
QString harmless(QString name) {
  return name.replace(u',', u'_').replace(u'"', u'_').replace(u'\\', u'_');
}

class PictureCopying {
public:
  PictureCopying(Disk& disk, const SkinFolder& skin)
      : disk_(disk), skin_(skin), images_(imagesName(skin)), folder_(skin.path() + u'/' + images_) {
    for (const QString& name : skin.names(folder_)) taken_.insert(name.toCaseFolded());
  }

  CopiedPictures run(const QStringList& paths) {
    try {
      if (!paths.isEmpty()) openFolder();
      for (const QString& path : paths)
        if (!done_.references.contains(path)) add(path);
    } catch (const WriteRefused&) {
      removeMade();
      throw;
    }
    return std::move(done_);
  }

private:
  void openFolder() {
    if (!QFileInfo::exists(folder_)) {
      refuse(images_, disk_.makeNewFolder(folder_));
      madeFolder_ = true;
    }
    if (!QFileInfo(folder_).isDir() || !skin_.contains(folder_))
      refuse(images_, DesignerTexts::tr("it is no folder of the Skin"));
  }

  // References are found without regard to case, so a name in other letters isn't free.
  void add(const QString& path) {
    const QString usual = harmless(QFileInfo(path).fileName());
    for (int i = 1;; ++i) {
      const QString name = numbered(usual, i);
      if (!taken_.contains(name.toCaseFolded())) return copy(path, name);
      const QString own = skin_.resolve(referenceTo(name));
      if (own.isEmpty() || !haveSameBytes(own, path)) continue;
      done_.references.insert(path, referenceTo(QFileInfo(own).fileName()));
      return;
    }
  }

  void copy(const QString& path, const QString& name) {
    const QFileInfo source(QFileInfo(path).canonicalFilePath());
    refuse(name, disk_.copy(source.filePath(), folder_ + u'/' + name, source.size()));
    taken_.insert(name.toCaseFolded());
    done_.names.append(name);
    done_.references.insert(path, referenceTo(name));
  }

  QString referenceTo(const QString& name) const { return u'\\' + images_ + u'\\' + name; }

  /// "queue.jpg", "queue 2.jpg"
  static QString numbered(const QString& usual, int number) {
    if (number == 1) return usual;
    const QFileInfo parts(usual);
    const QString end = parts.suffix().isEmpty() ? QString() : u'.' + parts.suffix();
    return parts.completeBaseName() + u' ' + QString::number(number) + end;
  }

  static void refuse(const QString& name, const QString& reason) {
    if (!reason.isEmpty()) throw WriteRefused({name, reason});
  }

  // What can't be removed either is nobody's harm: nothing names it.
  void removeMade() {
    for (const QString& name : std::as_const(done_.names))
      [[maybe_unused]] const QString stays = disk_.remove(folder_ + u'/' + name);
    if (madeFolder_) [[maybe_unused]]
      const QString stays = disk_.removeFolder(folder_);
  }

  Disk& disk_;
  const SkinFolder& skin_;
  QString images_;
  QString folder_;
  QSet<QString> taken_;
  CopiedPictures done_;
  bool madeFolder_ = false;
};

}  // namespace

CopiedPictures copyPictures(Disk& disk, const SkinFolder& skin, const QStringList& paths) {
  return PictureCopying(disk, skin).run(paths);
}

}  // namespace veneerer
