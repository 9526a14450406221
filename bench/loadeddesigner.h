// The designer on the default Skin of this repository, without windows.
#pragma once

#include "designer/designer.h"
#include "support/scriptedplatform.h"

namespace veneerer {

struct LoadedDesigner : test::ScriptedPlatform {
  LoadedDesigner() : ScriptedPlatform(ScriptedDialogs::Unexpected::Agree) {
    platform.folder = ProgramFolder{QStringLiteral(VENEERER_SOURCE_DIR)};
    designer.startUp();
  }

  Designer designer{platform};
};

}  // namespace veneerer
