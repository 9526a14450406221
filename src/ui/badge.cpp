#include "ui/badge.h"

namespace veneerer {

namespace {

constexpr int kSide = 16;  // pixels
constexpr int kInset = 2;  // pixels

const QColor kDisc(0xc6, 0x28, 0x28);
const QColor kLockDisc(0x42, 0x42, 0x42);

void paintDisc(QPainter& painter, const QRect& place, const QColor& colour) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::white, 1));
  painter.setBrush(colour);
  painter.drawEllipse(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace

QRect badgeRect(const QRect& of) {
  return QRect(of.topLeft() + QPoint(kInset, kInset), QSize(kSide, kSide));
}

void paintBadge(QPainter& painter, const QRect& place) {
  painter.save();
  paintDisc(painter, place, kDisc);
  QFont font = painter.font();
  font.setPixelSize(kSide - 5);
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(place, Qt::AlignCenter, QStringLiteral("!"));
  painter.restore();
}

QRect lockRect(const QRect& of) {
  return QRect(of.topRight() + QPoint(1 - kInset - kSide, kInset), QSize(kSide, kSide));
}

// The shackle and the body, by the sixteen pixels of the disc.
void paintLock(QPainter& painter, const QRect& place) {
  painter.save();
  paintDisc(painter, place, kLockDisc);
  painter.translate(place.topLeft());
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, 1.5));
  painter.drawArc(QRectF(5.5, 3.5, 5, 7), 0, 180 * 16);
  painter.fillRect(QRectF(4.5, 7, 7, 5), Qt::white);
  painter.restore();
}

}  // namespace veneerer
