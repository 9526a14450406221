// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer::looks {

struct LookTexts {
  Q_DECLARE_TR_FUNCTIONS(Looks)
};

}  // namespace veneerer::looks
