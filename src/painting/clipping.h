// Clipping that costs nothing where nothing sticks out.
#pragma once

#include <QPainter>

#include "painting/textlayouts.h"

namespace veneerer {

/// Clips a painter to a rectangle for the life of the object, if it is needed at all.
class ClipScope {
public:
  ClipScope(QPainter& painter, const QRectF& clip, bool isNeeded);
  ~ClipScope();
  ClipScope(const ClipScope&) = delete;
  ClipScope& operator=(const ClipScope&) = delete;

private:
  QPainter& painter_;
  bool isNeeded_;
};

/// Draws a text in the painter's pen with its top left at a point; only what lies within the clip shows.
void drawTextWithin(QPainter& painter, const LaidOutText& text, QPointF at, const QRectF& clip);

}  // namespace veneerer
