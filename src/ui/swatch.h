// Controls that show a piece of the state as a picture and can be clicked: a colour, or an element as the
// canvas would draw it.
#pragma once

#include <QAbstractButton>
#include <QToolButton>

#include "painting/canvaspainter.h"
#include "ui/bindings.h"

namespace veneerer {

/// The back colour of a picture box of Form6. A click is the element's own, which asks for a colour; the menu
/// key and a right click offer the colours of the Skin, one of which answers it.
class Swatch : public QAbstractButton {
public:
  Swatch(const Ui& ui, PictureBox& box);
  QSize sizeHint() const override;

  /// Offers the colours at that place of the screen.
  void showColours(const QPoint& at);

protected:
  void paintEvent(QPaintEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  Operator& hands_;
  PictureBox& box_;
};

/// A small arrow to stand beside a swatch, whose colours it offers.
QToolButton* makeColourArrow(Swatch& swatch);

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
