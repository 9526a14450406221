#include "problems/skinpictures.h"

#include <QDirIterator>
#include <QFileInfo>
#include <algorithm>

#include "problems/textdamage.h"

namespace veneerer {

namespace {

// A stranger's folder may hold any number.
constexpr qsizetype kMostPictures = 20'000;

bool isPictureName(const QString& name) {
  static constexpr QStringView kEndings[] = {u"bmp", u"jpg", u"jpeg", u"gif", u"png", u"ico", u"cur"};
  const QString ending = QFileInfo(name).suffix();
  return std::ranges::any_of(
      kEndings, [&](QStringView each) { return each.compare(ending, Qt::CaseInsensitive) == 0; });
}

bool isSame(const QString& one, const QString& other) {
  return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool isInImages(const QString& name) {
  return name.startsWith(QStringLiteral("images/"), Qt::CaseInsensitive);
}

bool comesBack(const QString& reference) {
  return textDamage(QString(), reference).isEmpty();
}

/// The name without its ending.
QString stemOf(const QString& name) {
  return name.left(name.lastIndexOf(u'.'));
}

// What a record file can't hold as it stands is left out of a name that we choose.
QString plainName(QString name) {
  for (QChar& c : name)
    if (c == u',' || c == u'"' || c.unicode() < 0x20 || asSaved(QString(c)) != QString(c)) c = u'_';
  return name;
}

}  // namespace

QString referenceTo(const QString& name) {
  return u'\\' + QString(name).replace(u'/', u'\\');
}

void SkinPictures::list() {
  if (std::exchange(isListed_, true)) return;
  const QString root = folder_.path() + u'/';
  QDirIterator files(root, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext() && names_.size() < kMostPictures) {
    const QString name = QDir::cleanPath(files.next()).mid(QDir::cleanPath(root).size() + 1);
    if (isPictureName(name)) names_.append(name);
  }
  names_.sort();
  std::stable_partition(names_.begin(), names_.end(), isInImages);
}

QString SkinPictures::likeliest(const QString& reference) {
  list();
  const QString wanted = bareFileName(reference);
  const QString stem = stemOf(wanted);
  if (stem.isEmpty()) return {};
  const auto first = [&](auto matches) {
    const auto found = std::ranges::find_if(names_, [&](const QString& name) {
      return matches(bareFileName(name)) && comesBack(referenceTo(name));
    });
    return found == names_.end() ? QString() : referenceTo(*found);
  };
  const QString same = first([&](const QString& name) { return isSame(name, wanted); });
  return same.isEmpty() ? first([&](const QString& name) { return isSame(stemOf(name), stem); }) : same;
}

QString SkinPictures::imagesFolder() const {
  for (const QString& name : folder_.names(folder_.path()))
    if (isSame(name, QStringLiteral("images")) && QFileInfo(folder_.file(name)).isDir()) return name;
  return QStringLiteral("images");
}

QString SkinPictures::freeName(const QString& path) const {
  const QString folder = imagesFolder();
  const QStringList taken = folder_.names(folder_.file(folder));
  const QFileInfo file(plainName(bareFileName(path)));
  const QString ending = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
  QString name = file.fileName();
  for (int i = 2; taken.contains(name, Qt::CaseInsensitive); ++i)
    name = QStringLiteral("%1 %2%3").arg(file.completeBaseName()).arg(i).arg(ending);
  return folder + u'/' + name;
}

}  // namespace veneerer
