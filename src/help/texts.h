// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct HelpTexts {
  Q_DECLARE_TR_FUNCTIONS(Help)
};

}  // namespace veneerer
