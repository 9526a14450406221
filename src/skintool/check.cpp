#include "skintool/check.h"

#include <QDir>
#include <QSet>

#include "canvas/design.h"
#include "properties/coverfile.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"
#include "skin/catalogue.h"
#include "skin/lists.h"
#include "skintool/filecheck.h"

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
    for (const CatalogueEntry& entry : catalogue()) checkEntry(entry);
    for (const QString& name : folder_.coverFiles())
      check(name, coverFile(state_, name, lastCoverOf(bytesOf(name))), true);
    // A routine without effect names it.
    names_ << QStringLiteral("back.ini");
    for (const QString& name :
         QDir(folder_.path()).entryList({QStringLiteral("*.ini")}, QDir::Files, QDir::Name))
      if (!names_.contains(name)) warn(name, QStringLiteral("is no record file that is ever read"));
    return findings_;
  }

private:
  void warn(const QString& file, const QString& text) {
    findings_.append({FindingKind::Warning, file, 0, text});
  }

  QByteArray bytesOf(const QString& name) const {
    try {
      return recordFileBytes(folder_.file(name));
    } catch (const RecordError&) {
      return {};
    }
  }

  void checkEntry(const CatalogueEntry& entry) {
    const Layout layout = entry.layout(state_);
    const QString read = layout.fileName();
    const QString written = savedName(entry, layout);
    names_ << read << written;
    check(read, layout, entry.load > 0);
    // Where case counts, search_Choice.ini is written and never read: its faults end no load.
    if (read != written) check(written, layout, false);
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
  Findings findings_;
};

}  // namespace

Findings checkSkin(const SkinFolder& folder, const Screen& screen) {
  return SkinCheck(folder, screen).run();
}

}  // namespace veneerer
