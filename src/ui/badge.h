// The mark of a picture that is missing.
#pragma once

#include <QPainter>

namespace veneerer {

/// Where the badge stands in the corner of something, in its pixels.
QRect badgeRect(const QRect& of);

/// A white exclamation mark on a red disc, which shows on any Skin.
void paintBadge(QPainter& painter, const QRect& place);

}  // namespace veneerer
