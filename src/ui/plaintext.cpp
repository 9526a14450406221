#include "ui/plaintext.h"

#include <QTextDocument>

#include "elements/printable.h"

namespace veneerer {

QString plainToolTip(const QString& text) {
  const QString shown = shownText(text);
  if (!Qt::mightBeRichText(shown)) return shown;
  return QStringLiteral("<span style=\"white-space:pre-wrap\">%1</span>").arg(shown.toHtmlEscaped());
}

QString plainMenuText(const QString& text) {
  return shownText(text).replace(u'&', QStringLiteral("&&"));
}

QStringList shownRows(const QStringList& rows) {
  QStringList shown;
  for (const QString& row : rows) shown.append(shownText(row));
  return shown;
}

}  // namespace veneerer
