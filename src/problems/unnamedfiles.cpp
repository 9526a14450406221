#include "problems/unnamedfiles.h"

#include <QDir>
#include <QDirIterator>
#include <QSet>

#include "problems/strayfiles.h"
#include "problems/texts.h"

namespace veneerer {

namespace {

QString wholePath(const QString& path) {
  return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

void addNamed(const Element& element, const SkinFolder& folder, QSet<QString>& paths) {
  QString path;
  if (element.has(Property::Name)) path = folder.resolve(element.as<StoredValue>(Property::Name).text());
  if (element.has(Property::Picture)) path = element.as<Picture>(Property::Picture).path();
  if (!path.isEmpty()) paths.insert(wholePath(path));
}

/// Of all files that a load looks for, those that are there are shown by one element or another.
QSet<QString> namedPaths(const State& state, const SkinFolder& folder) {
  QSet<QString> paths;
  for (const Window* window : std::initializer_list<const Window*>{&state.form1, &state.form2, &state.form4,
                                                                   &state.form5, &state.names}) {
    addNamed(*window, folder, paths);
    for (const Family* family : window->families())
      for (const Element* element : family->members()) addNamed(*element, folder, paths);
  }
  return paths;
}

bool isRecord(const QString& name, const QString& path) {
  if (name.contains(u'/')) return false;
  return name.endsWith(QStringLiteral(".ini"), Qt::CaseInsensitive) ||
         name.endsWith(QStringLiteral(".cov"), Qt::CaseInsensitive) || readsLikeCover(path);
}

}  // namespace

Findings unnamedFiles(const State& state, const SkinFolder& folder) {
  const QSet<QString> named = namedPaths(state, folder);
  const QString root = wholePath(folder.path()) + u'/';
  QStringList names;
  QDirIterator files(root, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString path = QDir::cleanPath(files.next());
    const QString name = path.mid(root.size());
    if (!named.contains(path) && !isRecord(name, path)) names << name;
  }
  names.sort();
  Findings findings;
  for (const QString& name : std::as_const(names))
    findings.append({FindingKind::Hint, name, 0, ProblemTexts::tr("nothing in the Skin names this file")});
  return findings;
}

}  // namespace veneerer
