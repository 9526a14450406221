// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct CanvasTexts {
  Q_DECLARE_TR_FUNCTIONS(Canvas)
};

}  // namespace veneerer
