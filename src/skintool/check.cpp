#include "skintool/check.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>

#include "designer/designer.h"
#include "properties/coverfile.h"
#include "properties/coverlayout.h"
#include "records/codepage.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"
#include "records/recordvalue.h"
#include "skin/catalogue.h"
#include "skin/lists.h"
#include "skintool/rawlines.h"

namespace veneerer {

namespace {

class SkinCheck {
public:
  SkinCheck(Platform& platform, const QString& name)
      : platform_(platform), designer_(platform), folder_(platform.folder, name) {
    fillFirstLists(designer_.state());
    fillOtherLists(designer_.state());
  }

  QList<Finding> run() {
    for (const CatalogueEntry& entry : catalogue()) checkRecordFile(entry);
    for (const QString& name : folder_.coverFiles()) checkCoverFile(name);
    checkUnknownFiles();
    std::stable_sort(findings_.begin(), findings_.end(),
                     [](const Finding& a, const Finding& b) { return a.isError > b.isError; });
    return findings_;
  }

private:
  void warn(const QString& file, const QString& text) { findings_.append({false, file, 0, text}); }

  void checkRecordFile(const CatalogueEntry& entry) {
    const Layout layout = entry.layout(designer_.state());
    for (const QString& name : QSet<QString>{layout.fileName(), savedName(entry, layout)}) {
      QFile file(folder_.file(name));
      if (!QFileInfo(file.fileName()).isFile() || !file.open(QIODevice::ReadOnly)) continue;
      const RawLines lines(file.readAll());
      checkLineCount(name, lines.count(), layout.lineCount());
      // What only the jukebox reads ends no load of ours, but it is read by the same rules.
      checkValues(name, layout, lines, entry.load > 0);
      checkCaptions(name, layout, lines);
    }
  }

  void checkCoverFile(const QString& name) {
    QFile file(folder_.file(name));
    if (!file.open(QIODevice::ReadOnly)) return;
    const RawLines lines(file.readAll());
    const Layout layout = coverFile(designer_.state(), name, lastCoverOf(lines.bytes()));
    checkLineCount(name, lines.count(), layout.lineCount());
    checkValues(name, layout, lines, true);
  }

  void checkLineCount(const QString& name, int found, int due) {
    if (found > due) warn(name, QStringLiteral("has %1 lines where the format has %2").arg(found).arg(due));
  }

  void checkValues(const QString& name, const Layout& layout, const RawLines& lines, bool isLoaded) {
    const Screen& screen = platform_.screen;
    Loading loading{designer_.state(), folder_, screen};
    const bool endsLoad = isLoaded && layout.onFailure() == OnFailure::Fatal;
    try {
      readRecords(strict(layout), lines.bytes(), loading);
      if (loading.rowsRead < readableRows(layout))
        warn(name, QStringLiteral("stops before an optional block, at %1 of %2 lines")
                       .arg(lines.count())
                       .arg(layout.lineCount()));
    } catch (const RecordError& error) {
      report(name, error, endsLoad);
    }
    checkReferences(name, layout, loading.rowsRead);
  }

  void report(const QString& name, const RecordError& error, bool endsLoad) {
    if (endsLoad)
      findings_.append({true, name, error.line(), error.place() + error.found()});
    else
      warn(name, QStringLiteral("line %1: ").arg(error.line()) + error.place() + error.found());
  }

  static Layout strict(Layout layout) {
    layout.failFatally();
    return layout;
  }

  static std::size_t readableRows(const Layout& layout) {
    std::size_t last = 0;
    for (std::size_t i = 0; i < layout.size(); ++i)
      if (!layout.rows()[i].isWrittenOnly) last = i + 1;
    return last;
  }

  void checkReferences(const QString& name, const Layout& layout, std::size_t rowsRead) {
    for (std::size_t i = 0; i < rowsRead; ++i) {
      const Row& row = layout.rows()[i];
      if (row.kind != RowKind::Stored || row.storedInto->isEmpty()) continue;
      const QString reference = row.storedInto->text();
      const QString path = folder_.resolve(reference);
      if (path.isEmpty())
        warn(name, QStringLiteral("line %1: the image \"%2\" is missing").arg(i + 1).arg(reference));
      else if (!folder_.contains(path))
        warn(name, QStringLiteral("line %1: the image \"%2\" lies outside the Skin's folder")
                       .arg(i + 1)
                       .arg(reference));
    }
  }

  // By lines, so it only holds while every value stands on its own line, as the writer puts them.
  void checkCaptions(const QString& name, const Layout& layout, const RawLines& lines) {
    const int count = std::min(lines.count(), layout.lineCount());
    for (int i = 0; i < count; ++i) {
      const Row& row = layout.rows()[static_cast<std::size_t>(i)];
      if (row.kind != RowKind::Text || row.from.property != Property::Caption) continue;
      const QString damage = captionDamage(lines.line(i));
      if (damage.isEmpty()) continue;
      warn(name, QStringLiteral("line %1: %2").arg(i + 1).arg(damage));
      if (lines.line(i).contains(u',')) return;
    }
  }

  void checkUnknownFiles() {
    QSet<QString> names = {QStringLiteral("back.ini")};
    for (const CatalogueEntry& entry : catalogue()) {
      const Layout layout = entry.layout(designer_.state());
      names << layout.fileName() << savedName(entry, layout);
    }
    const QStringList found =
        QDir(folder_.path()).entryList({QStringLiteral("*.ini")}, QDir::Files, QDir::Name);
    for (const QString& name : found)
      if (!names.contains(name)) warn(name, QStringLiteral("is no record file that is ever read"));
  }

  Platform& platform_;
  Designer designer_;
  SkinFolder folder_;
  QList<Finding> findings_;
};

}  // namespace

QString Finding::message() const {
  const QString place = line > 0 ? QStringLiteral("%1:%2").arg(file).arg(line) : file;
  return place + (isError ? QStringLiteral(": error: ") : QStringLiteral(": warning: ")) + text;
}

QList<Finding> checkSkin(Platform& platform, const QString& skinName) {
  return SkinCheck(platform, skinName).run();
}

}  // namespace veneerer
