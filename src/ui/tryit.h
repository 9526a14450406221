// The Skin tried out in full screen.
#pragma once

#include <QLabel>
#include <QWidget>

#include "ui/jukeboxscreen.h"

namespace veneerer {

/// The screen of the jukebox alone, as large as it fits, on black. The other windows take no input meanwhile,
/// so nothing is edited. Escape and F11 return, the arrow keys leaf through the screens, Home goes to the
/// first one. It goes when it is closed.
class TryIt : public QWidget {
  Q_OBJECT

public:
  /// Begins with the screen of that entry, 0 to 31.
  TryIt(const Ui& ui, int entry, QWidget* owner);

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

private:
  void leaf(int step);

  JukeboxScreen* screen_;
  QLabel* hint_;
};

/// Opens it on the screen that is chosen in the Edit Section list.
void tryOut(const Ui& ui, QWidget* owner);

}  // namespace veneerer
