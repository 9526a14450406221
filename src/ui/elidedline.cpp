#include "ui/elidedline.h"

#include <QPainter>
#include <QStyle>

#include "ui/plaintext.h"

namespace veneerer {

ElidedLine::ElidedLine() {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLine::setLine(const QString& text) {
  if (text == line_) return;
  line_ = text;
  setToolTip(plainToolTip(text));
  update();
}

void ElidedLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(line_, Qt::ElideRight, width());
  style()->drawItemText(&painter, rect(), Qt::AlignVCenter, palette(), isEnabled(), shown, foregroundRole());
}

}  // namespace veneerer
