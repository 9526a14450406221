#include "problems/filecheck.h"

#include "problems/referencedamage.h"
#include "problems/rowdamage.h"
#include "problems/texts.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"

namespace veneerer {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

Finding failed(State& state, const QString& name, const RecordError& error, FindingKind kind) {
  Finding finding{kind, name, error.line(), error.place() + error.found()};
  // An image reference or a counter isn't known by a key.
  if (state.find(error.element())) {
    finding.element = error.element();
    finding.property = propertyNamed(QLatin1String(error.field().toLatin1()));
  }
  return finding;
}

Finding risky(const QString& name, const RawValue& value, const QString& text) {
  Finding finding{FindingKind::Warning, name, value.line, text};
  if (const Field* field = value.row->field()) {
    finding.element = field->into.element->key();
    finding.property = field->into.property;
  } else if (const Reference* reference = value.row->reference()) {
    const Element& shows =
        reference->button ? static_cast<const Element&>(*reference->button) : *reference->into;
    finding.element = shows.key();
    finding.property = reference->button ? Property::Picture : Property::Name;
  }
  return finding;
}

QString counted(const QString& text, int count, const Layout& layout) {
  return text.arg(count).arg(layout.lineCount());
}

/// The same few pictures are named again and again.
QString faultOf(const QString& reference, CheckedSkin& skin) {
  const auto known = skin.referenceFaults.constFind(reference);
  if (known != skin.referenceFaults.constEnd()) return *known;
  return *skin.referenceFaults.insert(reference, referenceDamage(skin.folder, skin.pictures, reference));
}

QString damageOf(const RawValue& value, CheckedSkin& skin) {
  const QString damage = rowDamage(value);
  if (!damage.isEmpty() || !value.row->reference()) return damage;
  return faultOf(valueText(value.value), skin);
}

Findings valueFindings(CheckedSkin& skin, const QString& name, const std::vector<RawValue>& values) {
  Findings findings;
  for (const RawValue& value : values) {
    const QString damage = damageOf(value, skin);
    if (!damage.isEmpty()) findings.append(risky(name, value, damage));
    // What follows a comma stands in the place of others.
    if (!value.endsLine) break;
  }
  return findings;
}

}  // namespace

Findings checkFile(CheckedSkin& skin, const QString& name, const Layout& layout, FindingKind failure) {
  Findings findings;
  const auto warn = [&](int line, const QString& text) {
    findings.append({FindingKind::Warning, name, line, text});
  };
  Loading loading{skin.state, skin.folder, skin.screen};
  QByteArray bytes;
  try {
    const std::optional<QByteArray> content = recordFileIfThere(skin.folder.file(name));
    if (!content) return {};
    bytes = *content;
    const int lines = lineCount(bytes);
    if (lines > layout.lineCount())
      warn(0, counted(ProblemTexts::tr("has %1 lines where the format has %2"), lines, layout));
    readRecords(layout, bytes, loading, Failures::AllFatal);
    if (loading.lines.size() < layout.size())
      warn(0, counted(ProblemTexts::tr("stops before an optional block, at %1 of %2 lines"), lines, layout));
  } catch (const RecordError& error) {
    findings.append(failed(skin.state, name, error, failure));
  }
  if (skin.keepsPlaces) skin.places[name].add(layout, name, loading.lines, RecordPlaces::Side::Read);
  if (bytes.startsWith(kByteOrderMark)) warn(1, ProblemTexts::tr("a byte order mark counts as text"));
  return findings << valueFindings(skin, name, rawValues(layout, loading.lines, bytes));
}

}  // namespace veneerer
