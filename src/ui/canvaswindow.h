// Form1's window: the canvas, the menus and the line that tells what is under the pointer.
#pragma once

#include <QMainWindow>
#include <QScrollArea>

#include "ui/canvaswidget.h"
#include "ui/statusline.h"

namespace veneerer {

/// The canvas keeps Form1's size; sizing this window only opens or closes the view on it. When the window
/// comes up it is the active one, with the focus on the canvas.
class CanvasWindow : public QMainWindow {
  Q_OBJECT

public:
  explicit CanvasWindow(const Ui& ui);
  ~CanvasWindow() override;

  QSize sizeHint() const override;

  /// The window takes no more than that by itself, pixels; a larger canvas is scrolled.
  void setRoom(QSize room);

protected:
  void showEvent(QShowEvent* event) override;

Q_SIGNALS:
  /// The operator wants that window in front.
  void asked(veneerer::Window* window);

private:
  void addFileMenu();
  void addViewMenu();
  void addScreenMenu(QMenu* view);
  void addWindowMenu();
  void addHelpMenu();
  QAction* addCommand(QMenu* menu, const QString& text, const QKeySequence& keys, const QString& tip);
  void showScreen(int step);
  void fitCanvas();
  void takeFocus();
  void pointed(const Element* element);
  void about();

  Ui ui_;
  State& state_;
  QScrollArea* view_;
  CanvasWidget* canvas_;
  StatusLine* status_;
  QSize room_;
};

}  // namespace veneerer
