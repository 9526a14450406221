// What is drawn over the canvas and isn't part of the Skin.
#pragma once

#include <QLine>
#include <QList>
#include <QPainter>
#include <QRegion>
#include <array>

#include "canvas/alignmentlines.h"
#include "forms/state.h"
#include "ui/zoom.h"

namespace veneerer {

/// Lines that the operator laid out: canvas pixels from the canvas's corner, by Axis.
using Guides = std::array<QList<int>, 2>;

/// All of it in pixels of the view; what there is none of is null or empty.
struct CanvasMarks {
  struct Way {
    QLine line;
    QString length;  ///< canvas pixels
    bool operator==(const Way&) const = default;
  };

  QRect outline;          ///< around the element in hand, or held
  QRect hover;            ///< around what a press would take
  QList<QRect> selected;  ///< around what is selected
  QRect band;             ///< that is being drawn to select
  QList<QRect> handles;   ///< of the outline
  QList<QLine> lines;     ///< on which edges and centres agree
  QList<Way> ways;        ///< to the next neighbours
  QList<QRect> badges;    ///< of what misses its picture
  QList<QRect> locks;     ///< of what is locked

  bool operator==(const CanvasMarks&) const = default;

  /// Everything that painting it touches.
  QRegion region() const;
  void paint(QPainter& painter) const;
};

/// The lines and the ways around an element that is dragged; the bounds are those of the view.
void addAlignment(CanvasMarks& marks, const Element& element, const Surroundings& around,
                  const CanvasScale& scale, const QRect& bounds);

/// Grid lines over the exposed part of the view, steps in canvas pixels from the canvas's corner. Lines that
/// would lie too close to be told apart are thinned out.
void paintGrid(QPainter& painter, const QRect& exposed, QSizeF step, const Zoom& zoom);

void paintGuides(QPainter& painter, const QRect& exposed, const Guides& guides, const Zoom& zoom);

}  // namespace veneerer
