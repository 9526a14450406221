#include "problems/check.h"

#include <QDir>
#include <QFileInfo>

#include "design/design.h"
#include "painting/canvassize.h"
#include "problems/filecheck.h"
#include "problems/strayfiles.h"
#include "problems/texts.h"
#include "problems/wholeskin.h"
#include "records/coverfile.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"
#include "skin/catalogue.h"
#include "skin/lists.h"

namespace veneerer {

namespace {

// More than a thousand Skins' worth; a stranger's folder may hold any number of files that tell of any number
// of covers.
constexpr std::size_t kMostCoverLines = 1'000'000;

class SkinCheck {
public:
  SkinCheck(const SkinFolder& folder, const Screen& screen, qint64 decoding, KeepPlaces keep)
      : skin_{folder, screen, {}, PictureTrials(decoding), keep == KeepPlaces::Yes} {
    applyBuiltInDesign(skin_.state);
    fillFirstLists(skin_.state);
    fillOtherLists(skin_.state);
  }

  CheckedFiles run() {
    for (const SaveEntry& entry : saveOrder()) checkEntry(entry);
    if (!hasRecords_) warn(QString(), ProblemTexts::tr("no record file is here"));
    checkCovers();
    checkCanvasSize();
    Findings findings = settled(skin_, findings_);
    findings << untriedPictures();
    // A routine without effect names it.
    names_ << QStringLiteral("back.ini");
    findings << strayFiles(skin_.folder, names_);
    return {findings, loadedPlaces()};
  }

private:
  void warn(const QString& file, const QString& text) {
    findings_.append(PendingFinding{{FindingKind::Warning, file, 0, text}});
  }

  bool isFile(const QString& name) const { return QFileInfo(skin_.folder.file(name)).isFile(); }

  QStringList coverNames() const {
    return QDir(skin_.folder.path())
        .entryList({QStringLiteral("*.cov")}, QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name | QDir::IgnoreCase);
  }

  QByteArray bytesOf(const QString& name) const {
    try {
      return recordFileBytes(skin_.folder.file(name));
    } catch (const RecordError&) {
      return {};
    }
  }

  void checkCovers() {
    std::size_t lines = 0;
    int unchecked = 0;
    for (const QString& name : coverNames()) {
      if (lines > kMostCoverLines) {
        ++unchecked;
        continue;
      }
      const Layout layout = coverFile(skin_.state, name, lastCoverOf(bytesOf(name)));
      lines += layout.size();
      // A load lists plain files only; anything else of such a name stands in a save's way.
      check(name, layout, isFile(name));
    }
    if (unchecked > 0)
      warn(QString(), ProblemTexts::tr("there are too many cover files: %1 not checked").arg(unchecked));
  }

  void checkEntry(const SaveEntry& entry) {
    const Layout layout = entry.layout(skin_.state);
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
    if (const auto differing = twinFinding(skin_.folder, read, written))
      findings_.append(PendingFinding{*differing});
  }

  void check(const QString& name, const Layout& layout, bool isLoaded) {
    const bool endsLoad = isLoaded && layout.onFailure() == OnFailure::Fatal;
    findings_ << checkFile(skin_, name, layout, endsLoad ? FindingKind::Error : FindingKind::Warning);
  }

  void checkCanvasSize() {
    const CanvasSize size = canvasSize(skin_.state.form1, skin_.screen);
    if (!size.isCut) return;
    const QString text = ProblemTexts::tr("of so large a canvas only %1 x %2 pixels are drawn");
    warn(QStringLiteral("resolution.ini"), text.arg(size.pixels.width()).arg(size.pixels.height()));
  }

  // In the order of a full load, so that of several places the one that decides comes last.
  RecordPlaces loadedPlaces() {
    if (!skin_.keepsPlaces) return {};
    RecordPlaces places = skin_.places.value(skin_.folder.coverFiles().value(0));
    for (const LoadEntry& entry : loadOrder())
      places.add(skin_.places.value(entry.layout(skin_.state).fileName()));
    return places;
  }

  Findings untriedPictures() const {
    const int untried = skin_.pictures.untried();
    if (untried == 0) return {};
    const QString text = ProblemTexts::tr("all images together take too long to decode: %1 not tried");
    return {{FindingKind::Warning, {}, 0, text.arg(untried)}};
  }

  CheckedSkin skin_;
  QSet<QString> names_;  ///< under which record files are read or written
  bool hasRecords_ = false;
  PendingFindings findings_;
};

}  // namespace

CheckedFiles checkSkin(const SkinFolder& folder, const Screen& screen, qint64 decoding, KeepPlaces keep) {
  return SkinCheck(folder, screen, decoding, keep).run();
}

}  // namespace veneerer
