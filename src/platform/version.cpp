#include "platform/version.h"

namespace veneerer {

QString programVersion() {
  return QStringLiteral(VENEERER_VERSION);
}

}  // namespace veneerer
