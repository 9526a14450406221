// The marks in the corners of elements: a picture that is missing, a lock.
#pragma once

#include <QPainter>

namespace veneerer {

/// Where the badge stands in the corner of something, in its pixels.
QRect badgeRect(const QRect& of);

/// A white exclamation mark on a red disc, which shows on any Skin.
void paintBadge(QPainter& painter, const QRect& place);

/// Where the lock stands in the other corner of something, in its pixels.
QRect lockRect(const QRect& of);

/// A white padlock on a grey disc.
void paintLock(QPainter& painter, const QRect& place);

}  // namespace veneerer
