// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct FileTexts {
  Q_DECLARE_TR_FUNCTIONS(Files)
};

}  // namespace veneerer
