#include "recolouring/storedlines.h"

#include "design/design.h"
#include "records/coverfile.h"
#include "records/fieldvalue.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"
#include "records/textlines.h"
#include "skin/lists.h"

namespace veneerer {

namespace {

/// By the number of its line.
using ColourLines = QHash<int, const Field*>;

ColourLines colourLines(const Layout& layout, const std::vector<int>& lines) {
  ColourLines found;
  const std::size_t count = std::min(lines.size(), layout.size());
  for (std::size_t i = 0; i < count; ++i) {
    const Field* field = layout.rows()[i].field();
    if (field && field->kind == ValueKind::Colour && lines[i] > 0) found.insert(lines[i], field);
  }
  return found;
}

/// The blanks around the number and the line's end stay. A line of several values is no colour's own.
QByteArray recolouredLine(const QByteArray& line, const Field& field, const ColourMap& map) {
  RecordReader reader(line);
  const auto colour = std::get<Colour>(readField(reader, field));
  const Colour made = map.of(colour);
  if (made == colour || !reader.atEnd()) return line;
  return QByteArray(line).replace(line.trimmed(), QByteArray::number(made.number()));
}

}  // namespace

StoredLines::StoredLines(const SkinFolder& folder, const Screen& screen) : folder_(folder), screen_(screen) {
  applyBuiltInDesign(state_);
  fillFirstLists(state_);
  fillOtherLists(state_);
  for (const LoadEntry& entry : loadOrder()) layouts_.insert(entry.layout(state_).fileName(), entry.layout);
}

bool StoredLines::hold(const QString& name) const {
  const bool isCover = !name.contains(u'/') && name.endsWith(QStringLiteral(".cov"), Qt::CaseInsensitive);
  return isCover || layouts_.contains(name);
}

Layout StoredLines::layoutOf(const QString& name, const QByteArray& bytes) {
  if (const MakeLayout make = layouts_.value(name)) return make(state_);
  return coverFile(state_, name, lastCoverOf(bytes));
}

std::optional<QByteArray> StoredLines::recoloured(const QString& name, const QByteArray& bytes,
                                                  const ColourMap& map) {
  const Layout layout = layoutOf(name, bytes);
  Loading loading{state_, folder_, screen_};
  try {
    readRecords(layout, bytes, loading, Failures::AllFatal);
  } catch (const RecordError&) {
    return std::nullopt;
  }
  const ColourLines colours = colourLines(layout, loading.lines);
  QByteArray made;
  TextLines lines(bytes);
  for (int number = 1; !lines.atEnd(); ++number) {
    const QByteArray line = lines.next().toByteArray();
    const Field* field = colours.value(number);
    made += field ? recolouredLine(line, *field, map) : line;
  }
  return made == bytes ? std::nullopt : std::optional(made);
}

}  // namespace veneerer
