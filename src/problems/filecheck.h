// Looks for what is wrong or risky in one file of a Skin, line by line against its layout.
#pragma once

#include "images/picturetrials.h"
#include "problems/finding.h"
#include "records/layout.h"
#include "skin/recordplaces.h"

namespace veneerer {

/// A Skin that is being checked.
struct CheckedSkin {
  SkinFolder folder;
  Screen screen;
  State state;  ///< what was read so far
  PictureTrials pictures;
  bool keepsPlaces = false;
  QHash<QString, RecordPlaces> places = {};      ///< by the file that holds them
  QHash<QString, QString> referenceFaults = {};  ///< by the reference; empty for a sound one
};

/// Everything found in the file of that name; nothing when it isn't there. Where a load of it fails, the
/// finding is of the kind given. The values are read into the state.
Findings checkFile(CheckedSkin& skin, const QString& name, const Layout& layout, FindingKind failure);

}  // namespace veneerer
