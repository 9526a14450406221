// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct PanelTexts {
  Q_DECLARE_TR_FUNCTIONS(Panels)
};

}  // namespace veneerer
