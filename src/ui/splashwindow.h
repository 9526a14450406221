// frmSplash: tells what is being loaded.
#pragma once

#include <QLabel>
#include <QWidget>

#include "ui/bindings.h"

namespace veneerer {

/// Its progress label paints itself at each new text, without waiting for the program to come to rest.
class SplashWindow : public QWidget {
public:
  explicit SplashWindow(const Ui& ui);

protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace veneerer
