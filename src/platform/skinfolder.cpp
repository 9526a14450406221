#include "platform/skinfolder.h"

#include <QDir>
#include <QFileInfo>

namespace veneerer {

namespace {

// Character by character, as a comparison without regard to case does it.
QString folded(QString name) {
  for (QChar& c : name) c = c.toCaseFolded();
  return name;
}

}  // namespace

SkinsRoot::SkinsRoot(const ProgramFolder& program) : path_(program.skinsRoot) {
  if (!path_.isEmpty()) return;
  const QString first = program.path + QStringLiteral("/Skins");
  const QString second = program.path + QStringLiteral("/skins");
  path_ = !QFileInfo(first).isDir() && QFileInfo(second).isDir() ? second : first;
}

QStringList SkinsRoot::skins() const {
  return QDir(path_).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
}

SkinFolder::SkinFolder(const ProgramFolder& program, const QString& skinName)
    : path_(SkinsRoot(program).path() + u'/' + skinName) {}

bool SkinFolder::exists() const {
  return QFileInfo(path_).isDir();
}

QString SkinFolder::file(const QString& name) const {
  return path_ + u'/' + name;
}

QString SkinFolder::resolve(const QString& reference) const {
  if (reference.isEmpty() || reference.size() > kLongestReference || reference.contains(QChar::Null))
    return {};
  QString plain = reference;
  plain.replace(u'\\', u'/');
  const QString exact = path_ + plain;
  if (QFileInfo(exact).isFile()) return exact;
  return plain.startsWith(u'/') ? findIgnoringCase(plain.split(u'/', Qt::SkipEmptyParts)) : QString();
}

QString SkinFolder::findIgnoringCase(const QStringList& parts) const {
  QString found = path_;
  for (const QString& part : parts) {
    if (part == u".") continue;
    if (part == u"..") {
      found = above(found);
      continue;
    }
    const QString exact = found + u'/' + part;
    const QString name = QFileInfo::exists(exact) ? part : listing(found).value(folded(part));
    if (name.isEmpty()) return {};
    found += u'/' + name;
  }
  return QFileInfo(found).isFile() ? found : QString();
}

// A way down and up again leaves nothing in the path: a reference may go it a thousand times. Where a link
// leads elsewhere, the system finds the way back.
QString SkinFolder::above(const QString& folder) const {
  const QFileInfo info(folder);
  const bool isWayBack =
      folder.size() > path_.size() && !folder.endsWith(u"/..") && info.isDir() && !info.isSymLink();
  return isWayBack ? folder.left(folder.lastIndexOf(u'/')) : folder + QStringLiteral("/..");
}

const SkinFolder::Names& SkinFolder::listing(const QString& folder) const {
  // Links give one folder more names than can be listed.
  const QString real = QFileInfo(folder).canonicalFilePath();
  const auto known = listings_.constFind(real);
  if (known != listings_.constEnd()) return *known;
  Names names;
  QStringList found;
  if (!real.isEmpty()) found = QDir(real).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  // Of names that differ in case alone the first one stays.
  for (auto name = found.rbegin(); name != found.rend(); ++name) names.insert(folded(*name), *name);
  return *listings_.insert(real, names);
}

bool SkinFolder::contains(const QString& path) const {
  const QString root = QFileInfo(path_).canonicalFilePath();
  const QFileInfo info(path);
  // A file that isn't there yet lies where its folder lies.
  const QString real = info.exists() || info.isSymLink()
                           ? info.canonicalFilePath()
                           : QFileInfo(info.path()).canonicalFilePath() + u'/' + info.fileName();
  return !root.isEmpty() && real.startsWith(root + u'/');
}

QStringList SkinFolder::coverFiles() const {
  QStringList names;
  const auto files =
      QDir(path_).entryInfoList({QStringLiteral("*.cov")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
  // A link to a device counts as a file to the listing.
  for (const QFileInfo& file : files)
    if (file.isFile()) names.append(file.fileName());
  return names;
}

QString bareFileName(const QString& path) {
  const auto slash = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
  return path.mid(slash + 1);
}

}  // namespace veneerer
