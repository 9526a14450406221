// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct FormTexts {
  Q_DECLARE_TR_FUNCTIONS(Forms)
};

}  // namespace veneerer
