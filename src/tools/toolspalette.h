// The Tools window at work: which field and which command starts which tool.
#pragma once

#include <vector>

#include "forms/state.h"
#include "platform/platform.h"
#include "tools/rescale.h"

namespace veneerer {

/// Listens to the fields, options, samples and commands of Form6 for as long as it lives. A field counts as
/// changed whoever changed it, the operator or a click that filled it.
class ToolsPalette {
public:
  /// All must outlive the palette. The progress is told of a rescale's images; it may be null.
  ToolsPalette(State& state, Platform& platform, Progress* progress = nullptr);
  ToolsPalette(const ToolsPalette&) = delete;
  ToolsPalette& operator=(const ToolsPalette&) = delete;

  State& state() const { return state_; }
  Platform& platform() const { return platform_; }
  Rescale& rescale() { return rescale_; }

  /// Shows the colour that Option1 stands for, without Text2 counting as typed into.
  void showColour();

private:
  State& state_;
  Platform& platform_;
  Rescale rescale_;
  bool isShowingColour_ = false;
  std::vector<Attachment> attachments_;
};

}  // namespace veneerer
