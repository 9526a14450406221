// Form4, "File Controls/Settings": the choices for the whole Skin.
#pragma once

#include <QWidget>

#include "ui/bindings.h"

namespace veneerer {

class SettingsWindow : public QWidget {
public:
  explicit SettingsWindow(const Ui& ui);
};

}  // namespace veneerer
