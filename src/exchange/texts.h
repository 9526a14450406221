// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct ExchangeTexts {
  Q_DECLARE_TR_FUNCTIONS(Exchange)
};

}  // namespace veneerer
