// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct ComparisonTexts {
  Q_DECLARE_TR_FUNCTIONS(Comparison)
};

}  // namespace veneerer
