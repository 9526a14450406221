#include "ui/swatch.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QStyleOption>

#include "canvas/sections.h"
#include "elements/colour.h"
#include "ui/colourmenu.h"
#include "ui/frames.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

// A sample without a size of its own, and the most that one takes in its window; pixels.
constexpr QSizeF kPlainSample(112, 28);
constexpr QSizeF kLargestSample(160, 48);
constexpr QSize kSwatch(44, 24);

void paintFocus(QPainter& painter, const QWidget& widget) {
  if (!widget.hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(&widget);
  option.backgroundColor = widget.palette().color(QPalette::Window);
  widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &widget);
}

}  // namespace

Swatch::Swatch(const Ui& ui, PictureBox& box) : hands_(ui.hands), box_(box) {
  bindPainted(ui, box, *this);
}

QSize Swatch::sizeHint() const {
  return kSwatch;
}

void Swatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), box_.backColor().toQColor());
  paintFrame(painter, *this);
}

void Swatch::contextMenuEvent(QContextMenuEvent* event) {
  const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
  showColours(isByKey ? mapToGlobal(rect().bottomLeft()) : event->globalPos());
}

void Swatch::showColours(const QPoint& at) {
  if (hands_.isActing()) return;
  const auto give = [&hands = hands_, &box = box_](Colour colour) { hands.giveColour(box, colour); };
  (new ColourMenu(hands_, box_.backColor(), give, this))->popup(at);
}

QToolButton* makeColourArrow(Swatch& swatch) {
  auto* arrow = new QToolButton;
  arrow->setArrowType(Qt::DownArrow);
  arrow->setAutoRaise(true);
  arrow->setToolTip(UiTexts::tr("Choose among the colours of this Skin, or pick one from the canvas"));
  arrow->setAccessibleName(UiTexts::tr("Colours of this Skin"));
  QObject::connect(arrow, &QToolButton::clicked, &swatch,
                   [&swatch, arrow] { swatch.showColours(arrow->mapToGlobal(arrow->rect().bottomLeft())); });
  return arrow;
}

Sample::Sample(const Ui& ui, Element& element) : hands_(ui.hands), element_(element) {
  bindPainted(ui, element, *this);
  connect(&ui.hands, &Operator::acted, this, qOverload<>(&QWidget::update));
}

QSizeF Sample::elementPixels() const {
  const double width = element_.width() / hands_.screen().twipsPerPixelX();
  const double height = element_.height() / hands_.screen().twipsPerPixelY();
  return QSizeF(width > 0 ? width : kPlainSample.width(), height > 0 ? height : kPlainSample.height());
}

QSize Sample::sizeHint() const {
  return elementPixels().boundedTo(kLargestSample).expandedTo(QSizeF(16, 16)).toSize();
}

void Sample::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double scale = 1 / hands_.screen().twipsPerPixelX();
  const QSizeF size = elementPixels().boundedTo(QSizeF(width(), height()));
  painter_.paintElement(painter, element_, QRectF(QPointF(), size), scale);
  if (currentElement(hands_.state()) == &element_) {
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(QRectF(QPointF(), size).adjusted(0, 0, -1, -1));
  }
  paintFocus(painter, *this);
}

}  // namespace veneerer
