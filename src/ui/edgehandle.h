// A handle at the canvas's edge: it gives the canvas window its size.
#pragma once

#include <QWidget>

#include "ui/handles.h"
#include "ui/operator.h"

namespace veneerer {

class CanvasView;

/// One drag is one step. Sizes are whole canvas pixels, at least one.
class EdgeHandle : public QWidget {
  Q_OBJECT

public:
  EdgeHandle(Handle handle, Operator& hands, CanvasView& view);

  Handle handle() const { return handle_; }

Q_SIGNALS:
  /// The operator has taken it, and let go of it.
  void taken();
  void released();

protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

private:
  Handle handle_;
  Operator& hands_;
  CanvasView& view_;
  QPoint from_;  ///< on the screen
  QSizeF size_;  ///< of the canvas window at the press, twips
};

}  // namespace veneerer
