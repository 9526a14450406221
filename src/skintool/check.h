// Reports what is wrong or risky in a Skin.
#pragma once

#include <QList>
#include <QString>

#include "platform/platform.h"

namespace veneerer {

struct Finding {
  bool isError = false;
  QString file;
  int line = 0;  ///< 0 for the file as a whole
  QString text;

  /// "menu.ini:12: error: ..." or "menu.ini: warning: ..."
  QString message() const;
};

/// Everything found in the Skin of that name under the folder's root, file by file. Nothing is written.
QList<Finding> checkSkin(Platform& platform, const QString& skinName);

}  // namespace veneerer
