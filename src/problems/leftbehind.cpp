#include "problems/leftbehind.h"

#include <QFileInfo>
#include <QSet>
#include <algorithm>

#include "elements/printable.h"
#include "problems/rawvalues.h"
#include "problems/texts.h"
#include "records/coverfile.h"
#include "records/layoutreader.h"
#include "records/layoutwriter.h"
#include "records/recorderror.h"
#include "skin/catalogue.h"

namespace veneerer {

namespace {

std::optional<QByteArray> bytesOf(const SkinFolder& folder, const QString& name) {
  try {
    return recordFileIfThere(folder.file(name));
  } catch (const RecordError&) {
    return QByteArray();
  }
}

/// The values of a file, less the lines for a human reader.
QStringList valuesOf(const Layout& layout, const QByteArray& bytes) {
  QStringList values;
  RecordReader reader(bytes);
  for (const Row& row : layout.rows()) {
    if (reader.atEnd()) break;
    const QString value = valueText(reader.readValue());
    if (!row.literal()) values.append(value);
  }
  return values;
}

bool holdsWhatIsShown(const Layout& layout, const QByteArray& bytes) {
  return valuesOf(layout, bytes) == valuesOf(layout, composeRecords(layout));
}

bool isReloaded(MakeLayout layout) {
  return std::ranges::find(reloadOrder(), layout) != reloadOrder().end();
}

QString fileDamage(const Layout& layout, bool isReloaded, const std::optional<QByteArray>& bytes) {
  if (!bytes)
    return ProblemTexts::tr("isn't in this Skin: what it would hold is still as in the Skin before");
  if (isReloaded || holdsWhatIsShown(layout, *bytes)) return {};
  return ProblemTexts::tr(
      "isn't read when the Skin is changed: what it holds is still as in the Skin before");
}

Findings fileFindings(State& state, const SkinFolder& folder) {
  Findings findings;
  QSet<QString> seen;
  for (const LoadEntry& entry : loadOrder()) {
    const Layout layout = entry.layout(state);
    const QString& name = layout.fileName();
    if (layout.isEmpty() || seen.contains(name)) continue;
    seen.insert(name);
    const QString damage = fileDamage(layout, isReloaded(entry.layout), bytesOf(folder, name));
    if (!damage.isEmpty()) findings.append({FindingKind::Warning, name, 0, damage});
  }
  return findings;
}

Findings coverFindings(State& state, const SkinFolder& folder) {
  const QStringList names = folder.coverFiles();
  const bool isShown = std::ranges::any_of(names, [&](const QString& name) {
    const std::optional<QByteArray> bytes = bytesOf(folder, name);
    if (!bytes || lastCoverOf(*bytes) != state.globals.LastCoverIndex->value()) return false;
    return holdsWhatIsShown(coverFile(state, name, lastCoverOf(*bytes)), *bytes);
  });
  if (names.isEmpty() || isShown) return {};
  return {
      {FindingKind::Warning, names.first(), 0,
       ProblemTexts::tr("no cover file is read when the Skin is changed: the covers are still as in the Skin "
                        "before")}};
}

bool isOfAnotherSkin(const SkinFolder& folder, const QString& path) {
  const QString skins = QFileInfo(QFileInfo(folder.path()).path()).canonicalFilePath();
  return !folder.contains(path) && QFileInfo(path).canonicalFilePath().startsWith(skins + u'/');
}

// One finding a file: many elements may show it.
Findings pictureFindings(const State& state, const SkinFolder& folder) {
  Findings findings;
  QSet<QString> seen;
  for (const Family* family : state.form1.families())
    for (const Element* element : family->members()) {
      if (!element->has(Property::Picture)) continue;
      const QString path = element->as<Picture>(Property::Picture).path();
      if (path.isEmpty() || seen.contains(path)) continue;
      seen.insert(path);
      if (isOfAnotherSkin(folder, path))
        findings.append({FindingKind::Warning,
                         {},
                         0,
                         ProblemTexts::tr("%1 shows a picture of another Skin: %2")
                             .arg(element->key(), excerpt(path, kLongestReference)),
                         element->key(),
                         Property::Picture});
    }
  return findings;
}

}  // namespace

Findings leftBehindFindings(State& state, const SkinFolder& folder) {
  if (state.globals.SkinBefore->text().isEmpty()) return {};
  return fileFindings(state, folder) + coverFindings(state, folder) + pictureFindings(state, folder);
}

}  // namespace veneerer
