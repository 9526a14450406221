#include "problems/typedcaption.h"

#include "elements/printable.h"
#include "problems/rawvalues.h"
#include "problems/textdamage.h"
#include "problems/texts.h"
#include "records/codepage.h"

namespace veneerer {

namespace {

QString reason(const QString& caption, const QString& back) {
  const QString start = withoutLeadingBlanks(caption);
  if (start.startsWith(u'"')) return ProblemTexts::tr("a double quote at the start isn't part of the text");
  if (caption.contains(u',')) return ProblemTexts::tr("a comma ends the text, and its rest spoils the file");
  if (asSaved(caption) != caption) return ProblemTexts::tr("the file can't hold every character of it");
  if (start == back) return ProblemTexts::tr("blanks at the start are dropped");
  return ProblemTexts::tr("it is read as a value of another kind");
}

}  // namespace

QString typedCaptionDamage(const QString& caption) {
  if (textDamage(QString(), caption).isEmpty()) return {};
  const RecordValue value = RecordReader(toCodePage(caption) + "\r\n").readValue();
  if (std::holds_alternative<OddValue>(value))
    return ProblemTexts::tr("After a save no load would take this text.");
  const QString back = valueText(value);
  return ProblemTexts::tr("After a save \"%1\" would come back: %2.")
      .arg(excerpt(back), reason(caption, back));
}

}  // namespace veneerer
