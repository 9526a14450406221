// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct SkinTexts {
  Q_DECLARE_TR_FUNCTIONS(Skin)
};

}  // namespace veneerer
