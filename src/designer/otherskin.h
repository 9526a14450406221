// A Skin that is only read from while another one is in hand.
#pragma once

#include <memory>

#include "forms/state.h"
#include "platform/platform.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// Has a designer of its own, which starts on that Skin and asks nobody.
class OtherSkin {
public:
  /// A Skin of the same root as that platform's. Throws RecordError where there is none of that name or it
  /// can't be loaded. The platform must outlive this object.
  OtherSkin(const Platform& platform, const QString& name);
  ~OtherSkin();
  OtherSkin(const OtherSkin&) = delete;
  OtherSkin& operator=(const OtherSkin&) = delete;

  State& state();
  SkinFolder folder() const;

private:
  struct World;
  std::unique_ptr<World> world_;
};

}  // namespace veneerer
