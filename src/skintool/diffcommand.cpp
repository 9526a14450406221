#include "skintool/diffcommand.h"

#include "comparison/differencewords.h"
#include "elements/printable.h"
#include "skintool/batchskin.h"
#include "skintool/output.h"

namespace veneerer {

namespace {

struct SideNames {
  QString first;
  QString second;
};

QString subjectOf(const Difference& difference) {
  if (difference.element.isEmpty()) return QStringLiteral("text");
  if (!difference.property) return difference.element;
  return difference.element + u'.' + propertyName(*difference.property);
}

QString lineText(const Difference& difference) {
  return QStringLiteral("%1:%2: %3: ")
             .arg(difference.file, QString::number(difference.line), subjectOf(difference)) +
         lineWords(difference.before, difference.after) + QStringLiteral(" -> ") +
         lineWords(difference.after, difference.before);
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
