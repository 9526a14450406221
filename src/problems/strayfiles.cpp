#include "problems/strayfiles.h"

#include <QDir>
#include <algorithm>

#include "files/plainfile.h"
#include "problems/rawvalues.h"
#include "problems/texts.h"

namespace veneerer {

namespace {

/// More than the first three values of a cover file take.
constexpr qint64 kHeadBytes = 256;

bool endsIn(const QString& name, const char* extension) {
  return name.endsWith(QLatin1String(extension), Qt::CaseInsensitive);
}

QString neverRead(const QString& name, const QSet<QString>& names) {
  const auto meant = std::ranges::find_if(
      names, [&](const QString& known) { return known.compare(name, Qt::CaseInsensitive) == 0; });
  return meant == names.end() ? ProblemTexts::tr("is no record file that is ever read")
                              : ProblemTexts::tr("is never read: the name is spelt %1").arg(*meant);
}

}  // namespace

bool readsLikeCover(const QString& path) {
  RecordReader reader(headOfFile(path, kHeadBytes));
  for (int i = 0; i < 2; ++i)
    if (reader.atEnd() || !std::holds_alternative<double>(reader.readValue())) return false;
  return !reader.atEnd() && valueText(reader.readValue()) == u"Album Covers";
}

Findings strayFiles(const SkinFolder& folder, const QSet<QString>& names) {
  Findings findings;
  const auto warn = [&](const QString& name, const QString& text) {
    findings.append({FindingKind::Warning, name, 0, text});
  };
  for (const QString& name : QDir(folder.path()).entryList(QDir::Files, QDir::Name)) {
    if (names.contains(name) || endsIn(name, ".cov")) continue;
    if (endsIn(name, ".ini"))
      warn(name, neverRead(name, names));
    else if (readsLikeCover(folder.file(name)))
      warn(name, ProblemTexts::tr("reads like a cover file, but only names that end in .cov are listed"));
  }
  return findings;
}

}  // namespace veneerer
