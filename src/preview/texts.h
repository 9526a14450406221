// The texts of this folder, for whoever translates them.
#pragma once

#include <QCoreApplication>

namespace veneerer {

struct PreviewTexts {
  Q_DECLARE_TR_FUNCTIONS(Preview)
};

}  // namespace veneerer
