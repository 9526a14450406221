// Which element lies at a point of a window, and where an element lies in its window.
#pragma once

#include <QRectF>

#include "elements/element.h"
#include "elements/stage.h"
#include "forms/form1.h"
#include "painting/customoutline.h"
#include "painting/pixels.h"

namespace veneerer {

/// The Main Screen, Picture1(0): it is drawn as nothing but its children and takes no press that is meant for
/// what lies under it, so the frame shows through wherever it stands in the stacking order.
bool isSeeThrough(const Element& element);

/// An element's rectangle in the coordinates of its window, twips. A window's own begins at 0.
QRectF windowRect(const Element& element);

/// Whether the element and all that holds it are visible; the window's own state doesn't count.
bool isShown(const Element& element);

/// Finds what takes the mouse: what is seen there. A press goes through the see-through pixels of an animated
/// frame or an alpha image, and past the outline of a button, to what lies beneath; all else takes it in its
/// whole rectangle. Of an animated frame the first picture counts, so that the answer is steady.
class HitTest {
public:
  /// The cut-outs must outlive the test. The scale is that of the painting.
  explicit HitTest(CutOuts& cutOuts, const PixelScale& scale = {}) : cutOuts_(cutOuts), scale_(scale) {}

  /// The topmost visible element at a point of the canvas window, in twips; null where only the window's own
  /// surface is. Elements count only within their containers.
  Element* elementAt(const Form1& form, float x, float y) const;
  /// The same where that stands on the canvas window.
  Element* elementAt(const Stage& stage, float x, float y) const;

private:
  Element* childAt(const Element& container, double x, double y) const;
  Element* within(Element& element, double x, double y) const;
  bool meets(const Element& element, double x, double y) const;

  CutOuts& cutOuts_;
  PixelScale scale_;
};

}  // namespace veneerer
