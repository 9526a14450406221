#include "ui/mockup.h"

namespace veneerer {

// A screen that is seen through is the same as a picture over it with the rest of the strength.
void MockUp::paint(QPainter& painter, const QRegion& region, const Zoom& zoom) const {
  painter.save();
  painter.setClipRegion(region, Qt::IntersectClip);
  painter.setOpacity((isUnder ? 100 - strength : strength) / 100.0);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom.factor() < 1);
  painter.scale(zoom.factor(), zoom.factor());
  painter.drawImage(0, 0, picture);
  painter.restore();
}

}  // namespace veneerer
