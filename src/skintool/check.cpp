#include "skintool/check.h"

#include <QDir>
#include <QFileInfo>

#include "design/design.h"
#include "records/coverfile.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"
#include "skin/catalogue.h"
#include "skin/lists.h"
#include "skintool/filecheck.h"
#include "skintool/strayfiles.h"

namespace veneerer {

namespace {

class SkinCheck {
public:
  SkinCheck(const SkinFolder& folder, const Screen& screen) : folder_(folder), screen_(screen) {
    applyBuiltInDesign(state_);
    fillFirstLists(state_);
    fillOtherLists(state_);
  }

  Findings run() {
    for (const SaveEntry& entry : saveOrder()) checkEntry(entry);
    if (!hasRecords_) warn(QString(), QStringLiteral("no record file is here"));
    // A load lists plain files only; anything else of such a name stands in a save's way.
    for (const QString& name : coverNames())
      check(name, coverFile(state_, name, lastCoverOf(bytesOf(name))), isFile(name));
    // A routine without effect names it.
    names_ << QStringLiteral("back.ini");
    findings_ << strayFiles(folder_, names_);
    return findings_;
  }

private:
  void warn(const QString& file, const QString& text) {
    findings_.append({FindingKind::Warning, file, 0, text});
  }

  bool isFile(const QString& name) const { return QFileInfo(folder_.file(name)).isFile(); }

  QStringList coverNames() const {
    return QDir(folder_.path())
        .entryList({QStringLiteral("*.cov")}, QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name | QDir::IgnoreCase);
  }

  QByteArray bytesOf(const QString& name) const {
    try {
      return recordFileBytes(folder_.file(name));
    } catch (const RecordError&) {
      return {};
    }
  }

  void checkEntry(const SaveEntry& entry) {
    const Layout layout = entry.layout(state_);
    if (layout.isEmpty()) return;
    const QString& read = layout.fileName();
    const QString written = savedName(entry, layout);
    names_ << read << written;
    hasRecords_ |= isFile(read) || isFile(written);
    check(read, layout, isLoaded(entry));
    if (read != written) checkWritten(read, written, layout);
  }

  // Where case counts, search_Choice.ini is written and never read: its faults end no load.
  void checkWritten(const QString& read, const QString& written, const Layout& layout) {
    check(written, layout, false);
    if (isFile(read) && isFile(written) && bytesOf(read) != bytesOf(written))
      warn(read, QStringLiteral("differs from %1, which a save writes and no load reads").arg(written));
  }

  void check(const QString& name, const Layout& layout, bool isLoaded) {
    const bool endsLoad = isLoaded && layout.onFailure() == OnFailure::Fatal;
    findings_ << checkFile(state_, folder_, screen_, name, layout,
                           endsLoad ? FindingKind::Error : FindingKind::Warning);
  }

  SkinFolder folder_;
  Screen screen_;
  State state_;
  QSet<QString> names_;  ///< under which record files are read or written
  bool hasRecords_ = false;
  Findings findings_;
};

}  // namespace

Findings checkSkin(const SkinFolder& folder, const Screen& screen) {
  return SkinCheck(folder, screen).run();
}

}  // namespace veneerer
