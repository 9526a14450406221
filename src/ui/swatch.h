// Controls that show a piece of the state as a picture and can be clicked: a colour, or an element as the
// canvas would draw it.
#pragma once

#include <QAbstractButton>

#include "painting/canvaspainter.h"
#include "ui/bindings.h"

namespace veneerer {

/// The back colour of a picture box.
class Swatch : public QAbstractButton {
public:
  Swatch(const Ui& ui, PictureBox& box);
  QSize sizeHint() const override;

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  PictureBox& box_;
};

/// A label or a button in its own size, drawn as the canvas draws it. The one in hand has an outline.
class Sample : public QAbstractButton {
public:
  Sample(const Ui& ui, Element& element);
  QSize sizeHint() const override;

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  QSizeF elementPixels() const;

  Operator& hands_;
  Element& element_;
  CanvasPainter painter_;
};

}  // namespace veneerer
