#include "platform/program.h"

namespace veneerer {

QString programTitle() {
  return QStringLiteral("Veneerer");
}

QString programVersion() {
  return QStringLiteral(VENEERER_VERSION);
}

}  // namespace veneerer
