// Form2, "Button Settings": which buttons of the jukebox are on offer.
#pragma once

#include <QWidget>

#include "ui/bindings.h"

namespace veneerer {

class ButtonSettingsWindow : public QWidget {
public:
  explicit ButtonSettingsWindow(const Ui& ui);
};

}  // namespace veneerer
