// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct ElementTexts {
  Q_DECLARE_TR_FUNCTIONS(Elements)
};

}  // namespace veneerer
