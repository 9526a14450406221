// The texture viewer: picks the picture of each screen. A choice is shown on the canvas at once and kept as a
// name; it reaches a record file when the Skin is saved. No file is copied.
#pragma once

#include <vector>

#include "forms/state.h"
#include "platform/platform.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// Listens to the thumbnails, the frame preview and the commands of Form5 for as long as it lives.
class TextureViewer {
public:
  TextureViewer(State& state, const Platform& platform);
  TextureViewer(const TextureViewer&) = delete;
  TextureViewer& operator=(const TextureViewer&) = delete;

private:
  void chooseTexture(Element& thumbnail);
  void chooseFrame();
  void copyFrameToAll();
  void showFrame();
  /// Asks for a file and loads it. A null picture when none was chosen or it can't be decoded.
  Picture ask(const QString& filter, QString& name) const;

  State& state_;
  const Platform& platform_;
  std::vector<Attachment> attachments_;
};

}  // namespace veneerer
