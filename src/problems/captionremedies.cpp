#include "problems/captionremedies.h"

#include "elements/printable.h"
#include "problems/rawvalues.h"
#include "problems/textdamage.h"
#include "problems/texts.h"

namespace veneerer {

namespace {

/// The low quotation mark, which is in the code page and drawn like a comma.
constexpr QChar kLikeComma(0x201A);

struct Replacement {
  QChar forComma;
  const char* why;
};

constexpr Replacement kReplacements[] = {
    {kLikeComma, QT_TRANSLATE_NOOP(
                     "Problems", "Replace the caption by \"%1\": a low quotation mark looks like the comma")},
    {u';', QT_TRANSLATE_NOOP("Problems", "Replace the caption by \"%1\"")},
};

QString mended(QString caption, QChar forComma) {
  caption.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  for (const QChar end : {QChar(u'\r'), QChar(u'\n')}) caption.replace(end, u' ');
  if (withoutLeadingBlanks(caption).startsWith(u'"')) caption.remove(u'"');
  return caption.replace(u',', forComma);
}

}  // namespace

Remedies captionRemedies(const Element& element) {
  const QString& caption = element.as<QString>(Property::Caption);
  Remedies remedies;
  const QString what = ProblemTexts::tr("caption");
  if (lineDamage(what, caption).isEmpty()) return remedies;
  const bool hasComma = caption.contains(u',');
  for (const auto& [forComma, why] : kReplacements) {
    if (!hasComma && forComma == kLikeComma) continue;
    const QString better = mended(caption, forComma);
    if (textDamage(what, better).isEmpty())
      remedies.append({RemedyKind::MendCaption,
                       ProblemTexts::tr(why).arg(excerpt(better)),
                       {{element.key(), Property::Caption, better}}});
  }
  return remedies;
}

}  // namespace veneerer
