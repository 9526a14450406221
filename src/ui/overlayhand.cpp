#include "ui/overlayhand.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include "canvas/description.h"
#include "canvas/sections.h"
#include "editing/outline.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

bool isFar(QPoint way) {
  return way.manhattanLength() >= QApplication::startDragDistance() / 2;
}

QString entryFor(State& state, const Element& element) {
  const QString title = elementTitle(state, element);
  const QString name = shortName(element);
  QString text = title == name ? name : title + QStringLiteral("   ") + name;
  if (!isShown(element)) text = UiTexts::tr("%1   (hidden)").arg(text);
  return plainMenuText(text);
}

}  // namespace

OverlayHand::OverlayHand(Operator& hands, CanvasWidget& canvas)
    : QObject(&canvas), hands_(hands), canvas_(canvas) {
  canvas.installEventFilter(this);
  connect(&hands, &Operator::pickingColour, this, [this](const std::function<void(Colour)>& picked) {
    picked_ = picked;
    canvas_.setCursor(Qt::CrossCursor);
  });
}

OverlayHand::~OverlayHand() = default;

bool OverlayHand::eventFilter(QObject*, QEvent* event) {
  if (isReplaying_) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      return move(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      return release(*static_cast<QMouseEvent*>(event));
    case QEvent::KeyPress:
      return key(*static_cast<QKeyEvent*>(event));
    case QEvent::ContextMenu: {
      const auto& menu = *static_cast<QContextMenuEvent*>(event);
      if (menu.reason() != QContextMenuEvent::Keyboard) return false;
      listBeneath(placeForKeys());
      return true;
    }
    default:
      return false;
  }
}

bool OverlayHand::press(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return hold_ != Hold::None;
  from_ = event.position().toPoint();
  if (picked_) {
    pickAt(from_);
    return true;
  }
  if (event.modifiers() == Qt::ShiftModifier) hold_ = Hold::Band;
  if (event.modifiers() == Qt::ControlModifier) {
    hold_ = Hold::Beneath;
    heldBack_.reset(event.clone());
  }
  return hold_ != Hold::None;
}

bool OverlayHand::move(const QMouseEvent& event) {
  const QPoint place = event.position().toPoint();
  if (picked_) return true;
  if (hold_ == Hold::Band) canvas_.setBand(QRect(from_, place).normalized());
  if (hold_ != Hold::Beneath) return hold_ == Hold::Band;
  if (isFar(place - from_)) pressAfterAll();
  return hold_ == Hold::Beneath;
}

void OverlayHand::pressAfterAll() {
  hold_ = Hold::None;
  const QScopedValueRollback<bool> replaying(isReplaying_, true);
  QCoreApplication::sendEvent(&canvas_, heldBack_.get());
  heldBack_.reset();
}

bool OverlayHand::release(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || hold_ == Hold::None) return hold_ != Hold::None;
  const Hold held = std::exchange(hold_, Hold::None);
  const QPoint place = event.position().toPoint();
  heldBack_.reset();
  canvas_.setBand({});
  if (held == Hold::Beneath) {
    listBeneath(from_);
  } else if (isFar(place - from_)) {
    selectIn(QRect(from_, place).normalized());
  } else if (Element* element = canvas_.elementAt(from_)) {
    hands_.overlay().toggle(*element);
  }
  return true;
}

bool OverlayHand::key(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return clickSelected();
  if (event.key() != Qt::Key_Escape) return false;
  const bool wasPicking = picked_ != nullptr;
  endPicking();
  if (!wasPicking) hands_.overlay().clear();
  return true;
}

Element* OverlayHand::selected() const {
  const std::vector<Element*>& elements = hands_.overlay().elements();
  Element* element = elements.empty() ? currentElement(hands_.state()) : elements.back();
  return element && &element->window() == &hands_.state().form1 && isShown(*element) ? element : nullptr;
}

bool OverlayHand::clickSelected() {
  Element* element = selected();
  if (element && !hands_.isActing()) hands_.click(*element);
  return element != nullptr;
}

// Where there is no pointer, the keys have led somewhere.
QPoint OverlayHand::placeForKeys() const {
  const QPoint pointer = canvas_.mapFromGlobal(QCursor::pos());
  const Element* element = selected();
  return canvas_.rect().contains(pointer) || !element ? pointer : canvas_.placeOf(*element).center();
}

// What lies wholly in the band; a container doesn't come along with what it holds.
void OverlayHand::selectIn(const QRect& band) {
  std::vector<Element*> elements;
  for (const Family* family : hands_.state().form1.families())
    for (Element* element : family->members())
      if (isShown(*element) && element->children().empty() && band.contains(canvas_.placeOf(*element)))
        elements.push_back(element);
  hands_.overlay().select(std::move(elements));
}

void OverlayHand::listBeneath(QPoint place) {
  const QPointF twips = canvas_.twipsAt(place);
  auto* menu = new QMenu(&canvas_);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (Element* element :
       elementsAt(hands_.state(), static_cast<float>(twips.x()), static_cast<float>(twips.y()))) {
    QAction* entry = menu->addAction(entryFor(hands_.state(), *element));
    connect(entry, &QAction::triggered, this, [this, element] { hands_.click(*element); });
    connect(entry, &QAction::hovered, this, [this, element] { hands_.overlay().select({element}); });
  }
  if (menu->isEmpty()) menu->addAction(UiTexts::tr("Nothing lies here"))->setEnabled(false);
  menu->popup(canvas_.mapToGlobal(place));
}

void OverlayHand::pickAt(QPoint place) {
  const Colour colour = Colour::of(canvas_.colourAt(place));
  const auto picked = std::exchange(picked_, nullptr);
  endPicking();
  picked(colour);
}

void OverlayHand::endPicking() {
  picked_ = nullptr;
  canvas_.unsetCursor();
}

}  // namespace veneerer
