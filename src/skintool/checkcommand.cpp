#include "skintool/checkcommand.h"

#include <algorithm>

#include "designer/designer.h"
#include "elements/printable.h"
#include "platform/scripteddialogs.h"
#include "problems/check.h"
#include "problems/skinhints.h"
#include "records/recorderror.h"
#include "skintool/batchskin.h"
#include "skintool/output.h"

namespace veneerer {

namespace {

QString placeOf(const Finding& finding) {
  if (finding.file.isEmpty()) return {};
  const QString line = finding.line > 0 ? u':' + QString::number(finding.line) : QString();
  return finding.file + line + QStringLiteral(": ");
}

const char* nameOf(FindingKind kind) {
  switch (kind) {
    case FindingKind::Error:
      return "error";
    case FindingKind::Warning:
      return "warning";
    case FindingKind::Hint:
      break;
  }
  return "hint";
}

QString lineOf(const Finding& finding) {
  return placeOf(finding) + QLatin1String(nameOf(finding.kind)) + QStringLiteral(": ") + finding.text;
}

/// Of the Skin as a load leaves it; none of one that can't be loaded, of which an error tells.
Findings hintsOf(const QString& skin, const RecordPlaces& places, const Arguments& arguments) {
  ScriptedDialogs dialogs(ScriptedDialogs::Unexpected::Cancel);
  BatchSettings settings(skin);
  Disk disk;
  Platform platform{dialogs, settings, disk, arguments.screen, programFolder(skin)};
  Designer designer(platform);
  dialogs.answers.enqueue(true);
  try {
    designer.startUp();
  } catch (const RecordError&) {
    return {};
  }
  return skinHints(designer.state(), designer.skinFolder(), platform.screen, places, arguments.touch);
}

Findings findingsOf(const QString& skin, const Arguments& arguments) {
  const KeepPlaces keep = arguments.design ? KeepPlaces::Yes : KeepPlaces::No;
  const CheckedFiles files = checkSkin(SkinFolder(skin), arguments.screen, kTrialAllowance, keep);
  if (!arguments.design) return files.findings;
  return files.findings + hintsOf(skin, files.places, arguments);
}

}  // namespace

int runCheck(const Arguments& arguments, std::FILE* out) {
  struct Line {
    FindingKind kind;
    QString text;
  };
  QList<Line> lines;
  const QString& skin = arguments.skins.first();
  const QString name = arguments.isPiece ? skinName(skin) + u'/' : QString();
  for (const Finding& finding : findingsOf(skin, arguments))
    lines.append({finding.kind, printable(name + lineOf(finding))});
  std::ranges::stable_sort(lines, {}, &Line::kind);
  for (const Line& line : lines) {
    if (arguments.isPiece) put(out, QByteArray::number(static_cast<int>(line.kind)));
    put(out, line.text.toUtf8() + '\n');
  }
  print(out, {});
  const bool hasError = !lines.isEmpty() && lines.first().kind == FindingKind::Error;
  return hasError ? 1 : 0;
}

}  // namespace veneerer
