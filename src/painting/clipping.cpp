#include "painting/clipping.h"

namespace veneerer {

ClipScope::ClipScope(QPainter& painter, const QRectF& clip, bool isNeeded)
    : painter_(painter), isNeeded_(isNeeded) {
  if (!isNeeded_) return;
  painter_.save();
  painter_.setClipRect(clip, Qt::IntersectClip);
}

ClipScope::~ClipScope() {
  if (isNeeded_) painter_.restore();
}

void drawTextWithin(QPainter& painter, const LaidOutText& text, QPointF at, const QRectF& clip) {
  const QRectF ink = text.ink.translated(at);
  if (!ink.intersects(clip)) return;
  const ClipScope scope(painter, clip, !clip.contains(ink));
  text.draw(painter, at);
}

}  // namespace veneerer
