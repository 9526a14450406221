#include "skintool/checkcommand.h"

#include <algorithm>

#include "elements/printable.h"
#include "problems/check.h"
#include "skintool/batchskin.h"
#include "skintool/output.h"

namespace veneerer {

namespace {

QString placeOf(const Finding& finding) {
  if (finding.file.isEmpty()) return {};
  const QString line = finding.line > 0 ? u':' + QString::number(finding.line) : QString();
  return finding.file + line + QStringLiteral(": ");
}

QString lineOf(const Finding& finding) {
  const bool isError = finding.kind == FindingKind::Error;
  return placeOf(finding) + (isError ? QStringLiteral("error: ") : QStringLiteral("warning: ")) +
         finding.text;
}

}  // namespace

int runCheck(const QStringList& skins, std::FILE* out) {
  struct Line {
    FindingKind kind;
    QString text;
  };
  QList<Line> lines;
  for (const QString& skin : skins) {
    const QString name = skins.size() > 1 ? skinName(skin) + u'/' : QString();
    for (const Finding& finding : checkSkin(SkinFolder(skin), Screen()))
      lines.append({finding.kind, printable(name + lineOf(finding))});
  }
  std::ranges::stable_sort(lines, {}, &Line::kind);
  for (const Line& line : lines) print(out, line.text.toUtf8() + '\n');
  const bool hasError = !lines.isEmpty() && lines.first().kind == FindingKind::Error;
  return hasError ? 1 : 0;
}

}  // namespace veneerer
