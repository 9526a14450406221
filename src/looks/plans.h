// Where a look's parts stand on a screen of any size, by rule.
#pragma once

#include "design/plan.h"
#include "looks/look.h"

namespace veneerer::looks {

/// The smallest and the largest side of a Skin, pixels; the smallest holds for the width and, for the height,
/// in landscape.
inline constexpr int kLeastWidth = 640;
inline constexpr int kLeastHeight = 480;
inline constexpr int kMostPixels = 3840;

/// Why no look fits that size, empty when each does: from 640 x 480 to 3840 on either side, proportions from
/// 9:16 to 21:9.
QString faultOfSize(QSize size);

/// The plan for a size without fault. The texts are fitted to what that font takes.
design::Plan planOf(const Look& look, QSize size, const QString& font);

/// The look's choices as far as the plan has room for them.
Choices choicesFor(const Look& look, const design::Plan& plan);

}  // namespace veneerer::looks
