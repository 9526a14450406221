// Where a button is: what of its rectangle its captions may take and what takes the mouse.
#pragma once

#include <QImage>
#include <QRectF>

#include "elements/button.h"
#include "painting/customoutline.h"

namespace veneerer {

/// Whether a caption with that ink keeps within the outline of the button on that face, both in pixels. What
/// lies past the face itself doesn't count. Of an outline that a picture cuts it isn't known, so false.
bool isWithinOutline(const Button& button, const QRectF& face, const QRectF& ink);

/// The outline of a face that was cut from a picture: opaque wherever anything is seen. The face may be
/// glass; what stands on it isn't.
QImage outlineMask(QImage face);

/// Whether the button is seen at a point of a face of that size, in pixels from the face's top left.
bool isSeenAt(const Button& button, QSizeF face, QPointF at, CutOuts& cutOuts);

/// Whether an image that is shown over a place is seen at a point.
bool isSeenAt(const QImage& image, const QRectF& place, QPointF at);

}  // namespace veneerer
