// Painting as a function of the elements: the canvas, the samples of the tool windows and the exported
// pictures all come from here. Nothing is told to it of changes; what it keeps between two paintings is keyed
// by all that it depends on.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>
#include <functional>
#include <optional>

#include "elements/controls.h"
#include "elements/dress.h"
#include "elements/label.h"
#include "elements/stage.h"
#include "forms/form1.h"
#include "painting/buttonpainter.h"
#include "painting/pixels.h"
#include "painting/scaledimages.h"
#include "painting/textlayouts.h"

namespace veneerer {

class CanvasPainter {
public:
  /// The frame that an AnimatedFrame shows now; a null image for its picture's first one.
  using FrameSource = std::function<QImage(const Element&)>;

  CanvasPainter();
  CanvasPainter(const CanvasPainter&) = delete;
  CanvasPainter& operator=(const CanvasPainter&) = delete;

  void setFrameSource(FrameSource source) { frames_ = std::move(source); }

  /// The element that the operator is pointing at: a button among the canvas's elements is painted so. Null
  /// for none.
  void setHovered(const Element* element) { hovered_ = element; }
  /// The element that the mouse holds down: a button is painted so. Null for none.
  void setPressed(const Element* element) { pressed_ = element; }

  /// What is painted on the canvas window from now on in the place of its visible children; nothing for
  /// those.
  void setStage(std::optional<Stage> stage) { stage_ = std::move(stage); }

  /// In which colours everything is painted from now on.
  void setDress(const Dress& dress) { dress_ = dress; }

  /// The outlines of custom shapes, for a hit test of what is painted here.
  CutOuts& cutOuts() { return cutOuts_; }

  /// See ScaledImages: what may be spent from now on, and whether it was too little.
  void setScalingAllowance(qint64 pixels) { images_.setAllowance(pixels); }
  bool isCoarse() const { return images_.isExceeded(); }

  /// Paints the canvas window: its colour, its picture in its own size at the top left, then the visible
  /// elements in stacking order, each within its containers. Only what touches the exposed rectangle
  /// (device-independent pixels) is painted. A screen of 96 dots per inch has 1/15 pixels per twip. Pictures
  /// that aren't stretched show one of their pixels in one device-independent pixel, whatever the factors
  /// are.
  void paint(QPainter& painter, const Form1& form, const QRect& exposed, double pixelsPerTwipX,
             double pixelsPerTwipY);

  /// Paints one element alone, without its children, over a rectangle in device-independent pixels. Kinds
  /// that are a toolkit's own (text boxes, lists, check boxes) paint nothing.
  void paintElement(QPainter& painter, const Element& element, const QRectF& pixels,
                    double pixelsPerTwip = 1.0 / 15);

  /// The same for a button that the operator is pointing at.
  void paintButton(QPainter& painter, const Button& button, const QRectF& pixels, const ButtonState& state,
                   double pixelsPerTwip = 1.0 / 15);

private:
  void begin(QPainter& painter, double pixelsPerTwipX, double pixelsPerTwipY);
  void paintOne(QPainter& painter, const Element& element, const QRectF& rect, const QRectF& clip);
  void paintNatural(QPainter& painter, const Picture& picture, const QRectF& rect, const QRectF& clip);
  void paintLabel(QPainter& painter, const Label& label, const QRectF& rect, const QRectF& clip);
  void paintPictureBox(QPainter& painter, const PictureBox& box, const QRectF& rect, const QRectF& clip);
  void paintImageBox(QPainter& painter, const ImageBox& box, const QRectF& rect, const QRectF& clip);
  void paintFrame(QPainter& painter, const AnimatedFrame& frame, const QRectF& rect, const QRectF& clip);
  void paintAlphaImage(QPainter& painter, const AlphaImage& image, const QRectF& rect, const QRectF& clip);
  void paintStretched(QPainter& painter, const Picture& picture, const QRectF& rect, const QRectF& clip);
  QSize devicePixels(const QRectF& rect) const;

  TextLayouts texts_;
  ScaledImages images_;
  CutOuts cutOuts_;
  Dress dress_;
  ButtonPainter buttons_{texts_, images_, cutOuts_, dress_};
  FrameSource frames_;
  std::optional<Stage> stage_;
  const Element* hovered_ = nullptr;
  const Element* pressed_ = nullptr;
  PixelScale scale_;
  QRectF bounds_;  ///< what is ever painted lies in there, whichever part of it is painted now; pixels
};

}  // namespace veneerer
