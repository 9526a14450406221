// Reads a whole Skin into the elements: the full load of a start and the reload after a change of Skin.
#pragma once

#include "forms/state.h"
#include "panels/coverlayout.h"
#include "platform/platform.h"
#include "skin/catalogue.h"

namespace veneerer {

class SkinLoader {
public:
  SkinLoader(State& state, const Platform& platform, CoverLayouts& covers);

  /// Loads the Skin named by Combo3: first cover file, stars, record files, menu pictures. The splash's label
  /// tells what is being loaded. Afterwards the windows are shown and the splash is hidden. Throws
  /// RecordError; what was read until then stays.
  void load();

  /// Why no Skin can be loaded from that folder: a record file that is no plain file, too large, or a link
  /// out of the folder; empty when nothing of the kind is there. What such a file holds isn't looked at.
  QString refusal(const SkinFolder& folder) const;

  /// Reads the Skin named by Combo3 over the one that is loaded. No element is reset first: what the new
  /// Skin's files don't name keeps the old Skin's value. Throws RecordError.
  void reload();

private:
  void read(MakeLayout makeLayout, const SkinFolder& folder);
  void loadStars(const SkinFolder& folder);
  void showMenuPictures(const SkinFolder& folder);
  void showWindows();
  void tellWhatNoSaveCanWrite(const SkinFolder& folder);
  void tell(const char* progress);
  SkinFolder folder() const;

  State& state_;
  const Platform& platform_;
  CoverLayouts& covers_;
};

}  // namespace veneerer
