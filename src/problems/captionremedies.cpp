#include "problems/captionremedies.h"

#include "elements/printable.h"
#include "problems/rawvalues.h"
#include "problems/textdamage.h"

namespace veneerer {

namespace {

const QString kWhat = QStringLiteral("caption");

/// The low quotation mark, which is in the code page and drawn like a comma.
constexpr QChar kLikeComma(0x201A);

struct Replacement {
  QChar forComma;
  const char* why;
};

constexpr Replacement kReplacements[] = {
    {kLikeComma, "Replace the caption by \"%1\": a low quotation mark looks like the comma"},
    {u';', "Replace the caption by \"%1\""},
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
  if (lineDamage(kWhat, caption).isEmpty()) return remedies;
  const bool hasComma = caption.contains(u',');
  for (const auto& [forComma, why] : kReplacements) {
    if (!hasComma && forComma == kLikeComma) continue;
    const QString better = mended(caption, forComma);
    if (textDamage(kWhat, better).isEmpty())
      remedies.append({RemedyKind::MendCaption,
                       QString::fromLatin1(why).arg(excerpt(better)),
                       {{element.key(), Property::Caption, better}}});
  }
  return remedies;
}

}  // namespace veneerer
