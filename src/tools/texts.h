// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct ToolTexts {
  Q_DECLARE_TR_FUNCTIONS(Tools)
};

}  // namespace veneerer
