#include "elements/printable.h"

#include <QList>

namespace veneerer {

namespace {

bool isPlain(char32_t c) {
  const QChar::Category category = QChar::category(c);
  return QChar::isPrint(c) && category != QChar::Separator_Line && category != QChar::Separator_Paragraph;
}

QString plainText(QList<uint> codePoints) {
  for (uint& c : codePoints)
    if (!isPlain(c)) c = u'?';
  return QString::fromUcs4(reinterpret_cast<const char32_t*>(codePoints.constData()), codePoints.size());
}

}  // namespace

QString printable(const QString& text) {
  return plainText(text.toUcs4());
}

QString excerpt(const QString& text, int most) {
  // Not more is looked at than can be shown: a stranger's text may be endless.
  return plainText(text.left(2 * qsizetype(most)).toUcs4().mid(0, most));
}

}  // namespace veneerer
