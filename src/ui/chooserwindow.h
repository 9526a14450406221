// Form3, the Skin chooser.
#pragma once

#include <QWidget>

#include "ui/bindings.h"

namespace veneerer {

class ChooserWindow : public QWidget {
public:
  explicit ChooserWindow(const Ui& ui);
};

}  // namespace veneerer
