// Moving the view about: the left button with the Space bar held, or the middle button.
#pragma once

#include <QObject>
#include <QPoint>
#include <QWidget>
#include <memory>

class QMouseEvent;

namespace veneerer {

/// A middle press is held back until it is clear whether it pans: released without a movement, it reaches
/// the canvas as the press that it was.
class Panning : public QObject {
  Q_OBJECT

public:
  /// The canvas, and the viewport around it.
  Panning(QWidget& canvas, QWidget& viewport);
  ~Panning() override;

Q_SIGNALS:
  /// By so many pixels.
  void panned(QPoint way);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  enum class State { Idle, Undecided, Panning };

  bool press(QObject* watched, const QMouseEvent& event);
  bool move(const QMouseEvent& event);
  bool release(QObject* watched, const QMouseEvent& event);
  bool key(const QEvent& event);
  void holdSpace(bool held);
  void replay(QObject* watched, const QMouseEvent& release);
  void showCursor();

  QWidget& canvas_;
  QWidget& viewport_;
  State state_ = State::Idle;
  Qt::MouseButton button_ = Qt::NoButton;
  bool isSpaceHeld_ = false;
  bool isReplaying_ = false;
  QPoint last_;                          ///< on the screen
  std::unique_ptr<QMouseEvent> middle_;  ///< the press that is held back
};

}  // namespace veneerer
