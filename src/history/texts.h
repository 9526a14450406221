// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct HistoryTexts {
  Q_DECLARE_TR_FUNCTIONS(History)
};

}  // namespace veneerer
