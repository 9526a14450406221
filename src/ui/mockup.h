// A picture of what a screen is to become, laid over the canvas or under it.
#pragma once

#include <QImage>
#include <QPainter>

#include "ui/zoom.h"

namespace veneerer {

/// It lasts for the run only and is no part of the Skin. One pixel of it is one canvas pixel, from the
/// canvas's corner on.
struct MockUp {
  QImage picture;     ///< null for none
  int strength = 50;  ///< of what lies on top, percent
  bool isUnder = false;

  /// Paints it onto a region of the view that shows the canvas alone. Where it lies under the screen, the
  /// screen has the strength, and shows alone where the picture has no pixels.
  void paint(QPainter& painter, const QRegion& region, const Zoom& zoom) const;
};

}  // namespace veneerer
