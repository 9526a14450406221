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

void expectPicture(CheckedSkin& skin, const QString& reference) {
  if (skin.namedPictures.contains(reference)) return;
  const NamedPicture& named = *skin.namedPictures.insert(reference, namedPicture(skin.folder, reference));
  if (!named.path.isEmpty()) skin.pictures.expect(named.path);
}

void findDamage(PendingFindings& findings, CheckedSkin& skin, const QString& name, const RawValue& value) {
  const QString damage = rowDamage(value);
  if (!damage.isEmpty()) return findings.append(PendingFinding{risky(name, value, damage)});
  const QString reference = value.row->reference() ? valueText(value.value) : QString();
  if (reference.isEmpty()) return;
  expectPicture(skin, reference);
  findings.append(PendingFinding{risky(name, value, {}), reference});
}

PendingFindings valueFindings(CheckedSkin& skin, const QString& name, const std::vector<RawValue>& values) {
  PendingFindings findings;
  for (const RawValue& value : values) {
    findDamage(findings, skin, name, value);
    // What follows a comma stands in the place of others.
    if (!value.endsLine) break;
  }
  return findings;
}

}  // namespace

PendingFindings checkFile(CheckedSkin& skin, const QString& name, const Layout& layout, FindingKind failure) {
  PendingFindings findings;
  const auto warn = [&](int line, const QString& text) {
    findings.append(PendingFinding{{FindingKind::Warning, name, line, text}});
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
    findings.append(PendingFinding{failed(skin.state, name, error, failure)});
  }
  if (skin.keepsPlaces) skin.places[name].add(layout, name, loading.lines, RecordPlaces::Side::Read);
  if (bytes.startsWith(kByteOrderMark)) warn(1, ProblemTexts::tr("a byte order mark counts as text"));
  return findings << valueFindings(skin, name, rawValues(layout, loading.lines, bytes));
}

Findings settled(CheckedSkin& skin, const PendingFindings& pending) {
  Findings findings;
  for (const auto& [finding, reference] : pending) {
    findings.append(finding);
    if (!reference.isEmpty())
      findings.last().text = referenceDamage(skin.namedPictures.value(reference), skin.pictures, reference);
    if (findings.last().text.isEmpty()) findings.removeLast();
  }
  return findings;
}

}  // namespace veneerer
