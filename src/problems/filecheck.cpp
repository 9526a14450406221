#include "problems/filecheck.h"

#include "problems/referencedamage.h"
#include "problems/rowdamage.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"

namespace veneerer {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

Finding failed(const QString& name, const RecordError& error, FindingKind kind) {
  return {kind, name, error.line(), error.place() + error.found()};
}

QString counted(const char* text, int count, const Layout& layout) {
  return QString::fromLatin1(text).arg(count).arg(layout.lineCount());
}

QString damageOf(const RawValue& value, CheckedSkin& skin) {
  const QString damage = rowDamage(value);
  if (!damage.isEmpty() || !value.row->reference()) return damage;
  return referenceDamage(skin.folder, skin.pictures, valueText(value.value));
}

}  // namespace

Findings checkFile(CheckedSkin& skin, const QString& name, const Layout& layout, FindingKind failure) {
  Findings findings;
  const auto warn = [&](int line, const QString& text) {
    if (!text.isEmpty()) findings.append({FindingKind::Warning, name, line, text});
  };
  Loading loading{skin.state, skin.folder, skin.screen};
  QByteArray bytes;
  try {
    const std::optional<QByteArray> content = recordFileIfThere(skin.folder.file(name));
    if (!content) return {};
    bytes = *content;
    const int lines = lineCount(bytes);
    if (lines > layout.lineCount()) warn(0, counted("has %1 lines where the format has %2", lines, layout));
    readRecords(layout, bytes, loading, Failures::AllFatal);
    if (loading.lines.size() < layout.size())
      warn(0, counted("stops before an optional block, at %1 of %2 lines", lines, layout));
  } catch (const RecordError& error) {
    findings.append(failed(name, error, failure));
  }
  if (bytes.startsWith(kByteOrderMark)) warn(1, QStringLiteral("a byte order mark counts as text"));
  for (const RawValue& value : rawValues(layout, loading.lines, bytes)) {
    warn(value.line, damageOf(value, skin));
    // What follows a comma stands in the place of others.
    if (!value.endsLine) break;
  }
  return findings;
}

}  // namespace veneerer
