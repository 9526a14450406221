#include "elements/printable.h"

#include <QList>

namespace veneerer {

namespace {

// A box that is to show more freezes while it lays the text out.
constexpr int kMostShown = 1000;

QString plainText(QList<uint> codePoints) {
  for (uint& c : codePoints)
    if (!isPrintable(c)) c = u'?';
  return QString::fromUcs4(reinterpret_cast<const char32_t*>(codePoints.constData()), codePoints.size());
}

}  // namespace

bool isPrintable(char32_t codePoint) {
  const QChar::Category category = QChar::category(codePoint);
  return QChar::isPrint(codePoint) && category != QChar::Separator_Line &&
         category != QChar::Separator_Paragraph;
}

QString printable(const QString& text) {
  return plainText(text.toUcs4());
}

QString excerpt(const QString& text, int most) {
  // Not more is looked at than can be shown: a stranger's text may be endless.
  return plainText(text.left(2 * qsizetype(most)).toUcs4().mid(0, most));
}

QString shownText(const QString& text) {
  const bool isWhole = text.size() <= 2 * kMostShown && text.toUcs4().size() <= kMostShown;
  return isWhole ? printable(text) : excerpt(text, kMostShown - 1) + QChar(0x2026);
}

}  // namespace veneerer
