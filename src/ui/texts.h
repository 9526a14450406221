// The texts of the windows outside of classes of the toolkit's objects, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct UiTexts {
  Q_DECLARE_TR_FUNCTIONS(Ui)
};

}  // namespace veneerer
