// Paints lvButtons_H from its properties: face, picture, caption.
#pragma once

#include <QPainter>

#include "elements/button.h"
#include "elements/dress.h"
#include "painting/buttonface.h"
#include "painting/customoutline.h"
#include "painting/pixels.h"
#include "painting/scaledimages.h"
#include "painting/textlayouts.h"

namespace veneerer {

/// What the pointer and the keyboard are doing to a button.
struct ButtonState {
  bool hover = false;
  bool pressed = false;
  bool focused = false;
};

class ButtonPainter {
public:
  /// The caches and the dress, in whose colours the buttons are painted, must outlive the painter.
  ButtonPainter(TextLayouts& texts, ScaledImages& images, CutOuts& cutOuts, const Dress& dress)
      : texts_(texts), images_(images), faces_(cutOuts, images), dress_(dress) {}

  /// Paints the button over a rectangle; what lies outside the clip isn't touched. Both in pixels. Nothing
  /// shows past the button's outline. A face that is too large to keep (see kLargestKeptImage) is painted as
  /// its plain colour, which fills the rectangle.
  void paint(QPainter& painter, const Button& button, const QRectF& rect, const QRectF& clip,
             const PixelScale& scale, const ButtonState& state);

private:
  struct Task;
  struct Contents;
  struct PaintedFace;

  PaintedFace paintFace(const Task& task);
  Contents layOut(const Task& task);
  const LaidOutText* layOutCaption(const Task& task, QSizeF room);
  void paintContents(QPainter& painter, const Task& task, const Contents& contents);
  void paintWithinOutline(const Task& task, const Contents& contents, const PaintedFace& face);
  void paintSmallPicture(QPainter& painter, const Task& task, const Contents& contents);

  TextLayouts& texts_;
  ScaledImages& images_;
  ButtonFaces faces_;
  const Dress& dress_;
};

}  // namespace veneerer
