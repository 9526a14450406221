// The texture viewer: picks the picture of each screen. A choice is shown on the canvas at once and kept as a
// name; it reaches a record file when the Skin is saved. No file is copied.
#pragma once

#include "forms/state.h"
#include "platform/platform.h"
#include "platform/skinfolder.h"

namespace veneerer {

class TextureViewer {
public:
  TextureViewer(State& state, const Platform& platform);
  ~TextureViewer();
  TextureViewer(const TextureViewer&) = delete;
  TextureViewer& operator=(const TextureViewer&) = delete;

  /// A click on a thumbnail, on the frame preview or on a command. Any other element is none of its business.
  void click(Element& element);

private:
  void chooseTexture(Element& thumbnail);
  void chooseFrame();
  void copyFrameToAll();
  void showFrame();
  /// Asks for a file and loads it. A null picture when none was chosen or it can't be decoded.
  Picture ask(const QString& filter, QString& name) const;

  State& state_;
  const Platform& platform_;
  int subscription_;
};

}  // namespace veneerer
