// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct DesignerTexts {
  Q_DECLARE_TR_FUNCTIONS(Designer)
};

}  // namespace veneerer
