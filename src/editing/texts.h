// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct EditingTexts {
  Q_DECLARE_TR_FUNCTIONS(Editing)
};

}  // namespace veneerer
