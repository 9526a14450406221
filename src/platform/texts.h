// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct PlatformTexts {
  Q_DECLARE_TR_FUNCTIONS(Platform)
};

}  // namespace veneerer
