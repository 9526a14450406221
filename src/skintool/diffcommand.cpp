#include "skintool/diffcommand.h"

#include "comparison/comparison.h"
#include "elements/printable.h"
#include "skintool/batchskin.h"
#include "skintool/output.h"

namespace veneerer {

namespace {

/// Code points of a line that are printed; no image reference of use is longer.
constexpr int kMostShown = 260;

struct SideNames {
  QString first;
  QString second;
};

QString nameOf(LineEnd end) {
  switch (end) {
    case LineEnd::None:
      return QStringLiteral("no line end");
    case LineEnd::Return:
      return QStringLiteral("CR");
    case LineEnd::Feed:
      return QStringLiteral("LF");
    case LineEnd::ReturnFeed:
      break;
  }
  return QStringLiteral("CR LF");
}

/// Numbers stand between blanks in the files, which are shown only where they are all that differs.
QString shown(const std::optional<TextLine>& line, const std::optional<TextLine>& other) {
  if (!line) return QStringLiteral("(no line)");
  const QString text = line->text.trimmed();
  const bool isPlain = !text.isEmpty() && (!other || text != other->text.trimmed());
  if (isPlain) return excerpt(text, kMostShown);
  const QString quoted = u'"' + excerpt(line->text, kMostShown) + u'"';
  const bool isSameText = other && line->text == other->text;
  return isSameText ? quoted + u' ' + nameOf(line->end) : quoted;
}

QString subjectOf(const Difference& difference) {
  if (difference.element.isEmpty()) return QStringLiteral("text");
  if (!difference.property) return difference.element;
  return difference.element + u'.' + propertyName(*difference.property);
}

QString lineText(const Difference& difference) {
  return QStringLiteral("%1:%2: %3: ")
             .arg(difference.file, QString::number(difference.line), subjectOf(difference)) +
         shown(difference.before, difference.after) + QStringLiteral(" -> ") +
         shown(difference.after, difference.before);
}

QString textOf(const Difference& difference, const SideNames& names) {
  switch (difference.kind) {
    case Difference::Kind::Line:
      return lineText(difference);
    case Difference::Kind::Content:
      return difference.file + QStringLiteral(": differs");
    case Difference::Kind::OnlyInFirst:
      return difference.file + QStringLiteral(": only in ") + names.first;
    case Difference::Kind::OnlyInSecond:
      return difference.file + QStringLiteral(": only in ") + names.second;
    case Difference::Kind::Further:
      break;
  }
  return difference.file + QStringLiteral(": differences from here on aren't told, there are too many");
}

int printDifferences(const Differences& differences, const SideNames& names, std::FILE* out) {
  for (const Difference& difference : differences)
    put(out, printable(textOf(difference, names)).toUtf8() + '\n');
  print(out, {});
  return differences.isEmpty() ? 0 : 1;
}

/// By their names, or by their paths where both bear the same.
SideNames namesOf(const QString& first, const QString& second) {
  if (skinName(first) == skinName(second)) return {first, second};
  return {skinName(first), skinName(second)};
}

}  // namespace

int printUnsaved(Designer& designer, std::FILE* out) {
  const SkinFolder folder = designer.skinFolder();
  const SideNames names{folder.path().section(u'/', -1), QStringLiteral("what a save writes")};
  return printDifferences(savedDifferences(designer.state(), folder), names, out);
}

int runDiff(const Arguments& arguments, std::FILE* out) {
  const QString& first = arguments.skins.first();
  const QString& second = arguments.skins.last();
  const Differences differences = skinDifferences(SkinFolder(first), SkinFolder(second), arguments.screen);
  return printDifferences(differences, namesOf(first, second), out);
}

}  // namespace veneerer
