// How a Skin would look, without a file of it.
#pragma once

#include <QImage>
#include <QList>
#include <span>

#include "looks/skinbuilder.h"

namespace veneerer::looks {

struct Glimpse {
  QList<QImage> screens;  ///< in the order asked for
  QStringList notes;      ///< as those of the Skin
};

/// Pictures of the screens of those entries, each at most so large. They are drawn from a smaller Skin of the
/// same proportions, so a large one takes no longer. May be called on any thread.
Glimpse glimpseOf(const Wish& wish, std::span<const int> entries, QSize within);

}  // namespace veneerer::looks
