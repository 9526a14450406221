#include "ui/panning.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace veneerer {

Panning::Panning(QWidget& canvas, QWidget& viewport)
    : QObject(&viewport), canvas_(canvas), viewport_(viewport) {
  canvas.installEventFilter(this);
  viewport.installEventFilter(this);
}

Panning::~Panning() = default;

bool Panning::eventFilter(QObject* watched, QEvent* event) {
  if (isReplaying_) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return press(watched, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      return move(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      return release(watched, *static_cast<QMouseEvent*>(event));
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return key(*event);
    case QEvent::FocusOut:
      holdSpace(false);
      return false;
    default:
      return false;
  }
}

bool Panning::press(QObject* watched, const QMouseEvent& event) {
  if (state_ != State::Idle) return true;
  const bool pans = isSpaceHeld_ && event.button() == Qt::LeftButton && event.buttons() == Qt::LeftButton;
  const bool may = event.button() == Qt::MiddleButton && event.buttons() == Qt::MiddleButton;
  if (!pans && !may) return false;
  state_ = pans ? State::Panning : State::Undecided;
  button_ = event.button();
  last_ = event.globalPosition().toPoint();
  if (may && watched == &canvas_) middle_.reset(event.clone());
  showCursor();
  return true;
}

bool Panning::move(const QMouseEvent& event) {
  if (state_ == State::Idle) return isSpaceHeld_ && event.buttons() == Qt::NoButton;
  const QPoint way = event.globalPosition().toPoint() - last_;
  if (state_ == State::Undecided && way.manhattanLength() < QApplication::startDragDistance() / 2)
    return true;
  state_ = State::Panning;
  last_ += way;
  showCursor();
  Q_EMIT panned(way);
  return true;
}

bool Panning::release(QObject* watched, const QMouseEvent& event) {
  if (state_ == State::Idle || event.button() != button_) return state_ != State::Idle;
  const bool wasPress = state_ == State::Undecided && middle_;
  state_ = State::Idle;
  showCursor();
  if (wasPress) replay(watched, event);
  middle_.reset();
  return true;
}

void Panning::replay(QObject* watched, const QMouseEvent& release) {
  isReplaying_ = true;
  QCoreApplication::sendEvent(&canvas_, middle_.get());
  const std::unique_ptr<QMouseEvent> end(release.clone());
  QCoreApplication::sendEvent(watched, end.get());
  isReplaying_ = false;
}

bool Panning::key(const QEvent& event) {
  const auto& key = static_cast<const QKeyEvent&>(event);
  if (key.key() != Qt::Key_Space || key.modifiers() != Qt::NoModifier) return false;
  if (!key.isAutoRepeat()) holdSpace(event.type() == QEvent::KeyPress);
  return true;
}

void Panning::holdSpace(bool held) {
  isSpaceHeld_ = held;
  showCursor();
}

void Panning::showCursor() {
  for (QWidget* widget : {&canvas_, &viewport_}) {
    if (state_ == State::Panning)
      widget->setCursor(Qt::ClosedHandCursor);
    else if (isSpaceHeld_)
      widget->setCursor(Qt::OpenHandCursor);
    else
      widget->unsetCursor();
  }
}

}  // namespace veneerer
