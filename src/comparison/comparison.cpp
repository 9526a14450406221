#include "comparison/comparison.h"

#include <algorithm>
#include <map>

#include "comparison/linedifferences.h"
#include "comparison/skinfiles.h"
#include "files/plainfile.h"
#include "records/layoutreader.h"
#include "records/layoutwriter.h"
#include "skin/catalogue.h"

namespace veneerer {

namespace {

bool isFull(Differences& differences, const QString& file) {
  if (differences.size() < kMostDifferences) return false;
  differences.append({Difference::Kind::Further, file});
  return true;
}

/// Whether one side alone has the file, which is told then.
bool isOnOneSide(Differences& differences, const QString& file, bool isInFirst, bool isInSecond) {
  if (isInFirst == isInSecond) return false;
  differences.append({isInFirst ? Difference::Kind::OnlyInFirst : Difference::Kind::OnlyInSecond, file});
  return true;
}

/// Lines are told of files that both sides have; nothing of those that hold the same bytes.
bool haveOtherLines(Differences& differences, const QString& file, const std::optional<QByteArray>& first,
                    const std::optional<QByteArray>& second) {
  return !isOnOneSide(differences, file, first.has_value(), second.has_value()) && first != second;
}

void addRecords(Differences& differences, const QString& name, SkinFiles& first, SkinFiles& second) {
  const std::optional<QByteArray> left = first.bytes(name);
  const std::optional<QByteArray> right = second.bytes(name);
  if (haveOtherLines(differences, name, left, right))
    addLineDifferences(differences, name, first.text(name, *left), second.text(name, *right));
}

}  // namespace

Differences savedDifferences(State& state, const SkinFolder& folder) {
  std::map<QString, MakeLayout> files;
  for (const SaveEntry& entry : saveOrder()) {
    const Layout layout = entry.layout(state);
    if (!layout.isEmpty()) files.emplace(savedName(entry, layout), entry.layout);
  }
  Differences differences;
  for (const auto& [name, makeLayout] : files) {
    if (isFull(differences, name)) break;
    const Layout layout = makeLayout(state);
    const std::optional<QByteArray> bytes = recordFileIfThere(folder.file(name));
    if (haveOtherLines(differences, name, bytes, composeRecords(layout)))
      addLineDifferences(differences, name, {*bytes, {}}, writtenText(layout));
  }
  return differences;
}

Differences skinDifferences(const SkinFolder& first, const SkinFolder& second, const Screen& screen) {
  SkinFiles left(first, screen);
  SkinFiles right(second, screen);
  QStringList names = left.names() + right.names();
  names.sort();
  names.removeDuplicates();
  Differences differences;
  for (const QString& name : std::as_const(names)) {
    if (isFull(differences, name)) break;
    if (left.isRecord(name))
      addRecords(differences, name, left, right);
    else if (!isOnOneSide(differences, name, left.has(name), right.has(name)) &&
             !haveSameBytes(left.path(name), right.path(name)))
      differences.append({Difference::Kind::Content, name});
  }
  return differences;
}

}  // namespace veneerer
