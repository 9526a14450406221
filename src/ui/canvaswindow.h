// The main window: Form1's canvas in the middle, the menus, the panels around it, and the line that tells
// what is under the pointer.
#pragma once

#include <QDockWidget>
#include <QMainWindow>

#include "ui/canvasview.h"
#include "ui/statusline.h"

namespace veneerer {

/// A panel of the main window. It can be torn off, and closed and brought back by the menu and its key.
struct Panel {
  QDockWidget* dock;
  Window* element;   ///< whose Visible tells whether the panel is open; null for one that is ours alone
  QString menuText;  ///< with a mnemonic
  QKeySequence keys;
};

/// The canvas keeps Form1's size; sizing this window only changes the view on it. When the window
/// comes up it is the active one, with the focus on the canvas.
class CanvasWindow : public QMainWindow {
  Q_OBJECT

public:
  explicit CanvasWindow(const Ui& ui);
  ~CanvasWindow() override;

  /// Takes a panel in, behind those that are there.
  void add(const Panel& panel);

  /// All panels back at the canvas's side, in as many columns as the screen has room for, the first one of
  /// each in front; and the window as large as it all needs and the screen allows.
  void arrange();

protected:
  void showEvent(QShowEvent* event) override;

private:
  void addInHandLine();
  void addFileMenu();
  void addEditMenu();
  void addViewMenu();
  void addScreenMenu(QMenu* view);
  void addWindowMenu();
  void addHelpMenu();
  QAction* addCommand(QMenu* menu, const QString& text, const QList<QKeySequence>& keys, const QString& tip);
  void showScreen(int step);
  void bringUp(const Panel& panel);
  void takeFocus();
  void pointed(const Element* element);
  void about();

  Ui ui_;
  State& state_;
  CanvasView* view_;
  StatusLine* status_;
  QMenu* panelMenu_;
  QList<Panel> panels_;
};

}  // namespace veneerer
