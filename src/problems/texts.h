// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct ProblemTexts {
  Q_DECLARE_TR_FUNCTIONS(Problems)
};

}  // namespace veneerer
