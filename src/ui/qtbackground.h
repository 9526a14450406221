// Work that takes long, beside windows that stay alive.
#pragma once

#include "platform/platform.h"

namespace veneerer {

/// Runs work on a thread of its own. What takes no longer than a frame is waited for; meanwhile and behind it
/// the windows are painted, but take no input: keys and the mouse wait, and a window that is told to close
/// does so afterwards.
class QtBackground : public Background {
public:
  void run(const std::function<void()>& work) override;
};

}  // namespace veneerer
