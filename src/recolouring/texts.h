// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct RecolouringTexts {
  Q_DECLARE_TR_FUNCTIONS(Recolouring)
};

}  // namespace veneerer
