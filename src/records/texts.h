// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct RecordTexts {
  Q_DECLARE_TR_FUNCTIONS(Records)
};

}  // namespace veneerer
