#include "skintool/check.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <algorithm>

#include "designer/designer.h"
#include "elements/printable.h"
#include "properties/coverfile.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"
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
    return findings_;
  }

private:
  void warn(const QString& file, const QString& text) { findings_.append({false, file, 0, text}); }
  void warn(const QString& file, int line, const QString& text) {
    if (!text.isEmpty()) warn(file, QStringLiteral("line %1: %2").arg(line).arg(printable(text)));
  }

  // search_Choice.ini is written and, where case counts, never read: its faults end no load.
  void checkRecordFile(const CatalogueEntry& entry) {
    const Layout layout = entry.layout(designer_.state());
    checkFile(layout.fileName(), layout, entry.load > 0);
    if (entry.saveName) checkFile(savedName(entry, layout), layout, false);
  }

  void checkCoverFile(const QString& name) {
    const int lastCover = lastCoverOf(bytesOf(name));
    checkFile(name, coverFile(designer_.state(), name, lastCover), true);
  }

  QByteArray bytesOf(const QString& name) const {
    try {
      return recordFileBytes(folder_.file(name));
    } catch (const RecordError&) {
      return {};
    }
  }

  void checkFile(const QString& name, const Layout& layout, bool isLoaded) {
    const QString path = folder_.file(name);
    if (!QFileInfo(path).isFile()) return;
    const bool endsLoad = isLoaded && layout.onFailure() == OnFailure::Fatal;
    try {
      checkBytes(name, layout, recordFileBytes(path), endsLoad);
    } catch (const RecordError& error) {
      report(name, error, endsLoad);
    }
  }

  void checkBytes(const QString& name, const Layout& layout, const QByteArray& bytes, bool endsLoad) {
    const RawLines lines(bytes);
    if (lines.count() > layout.lineCount())
      warn(name,
           QStringLiteral("has %1 lines where the format has %2").arg(lines.count()).arg(layout.lineCount()));
    Loading loading{designer_.state(), folder_, platform_.screen};
    try {
      readRecords(layout, bytes, loading, Failures::AllFatal);
      if (loading.lines.size() < layout.size())
        warn(name, QStringLiteral("stops before an optional block, at %1 of %2 lines")
                       .arg(lines.count())
                       .arg(layout.lineCount()));
    } catch (const RecordError& error) {
      report(name, error, endsLoad);
    }
    checkRows(name, layout, loading.lines, lines);
  }

  void report(const QString& name, const RecordError& error, bool endsLoad) {
    if (endsLoad)
      findings_.append({true, name, error.line(), error.place() + error.found()});
    else
      warn(name, error.line(), error.place() + error.found());
  }

  /// rowLines gives the line of each row that was read.
  void checkRows(const QString& name, const Layout& layout, const std::vector<int>& rowLines,
                 const RawLines& lines) {
    for (std::size_t i = 0; i < rowLines.size(); ++i) {
      const Row& row = layout.rows()[i];
      const int line = rowLines[i];
      if (line < 1 || line > lines.count()) continue;
      if (row.kind == RowKind::Stored) checkReference(name, line, row.storedInto->text());
      if (row.kind == RowKind::Text && row.from.property == Property::Caption)
        warn(name, line, captionDamage(lines.line(line - 1)));
    }
  }

  void checkReference(const QString& name, int line, const QString& reference) {
    if (reference.isEmpty()) return;
    const QString path = folder_.resolve(reference);
    const QString said = QStringLiteral("the image \"%1\" ").arg(reference);
    if (path.isEmpty())
      warn(name, line, said + QStringLiteral("is missing"));
    else if (!folder_.contains(path))
      warn(name, line, said + QStringLiteral("lies outside the Skin's folder"));
    else if (designer_.state().pictures.load(path).image().isNull())
      warn(name, line, said + QStringLiteral("can't be decoded"));
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
