// What of the canvas has to be painted anew, gathered over one action.
#pragma once

#include <QRect>
#include <QRegion>

#include "elements/switchboard.h"

namespace veneerer {

/// Works out from change notices which pixels of a canvas no longer show their elements. The least of it is
/// kept exactly; a change of the whole Skin ends as one rectangle.
class DirtyArea {
public:
  /// Device-independent pixels per twip.
  DirtyArea(double pixelsPerTwipX, double pixelsPerTwipY) : x_(pixelsPerTwipX), y_(pixelsPerTwipY) {}

  /// The place that the element has, and the one that it had. A change that can't be seen adds nothing.
  void add(const Change& change);
  void add(const QRect& pixels);
  /// Everything that could be shown at all.
  void addAll();
  bool isEmpty() const { return region_.isEmpty(); }
  /// The area, which is empty from then on.
  QRegion take();

  /// The pixels that a rectangle in twips touches, and one more all around.
  QRect pixelsOf(const QRectF& twips) const;

private:
  double x_;
  double y_;
  QRegion region_;
};

}  // namespace veneerer
