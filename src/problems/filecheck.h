// Looks for what is wrong or risky in one file of a Skin, line by line against its layout.
#pragma once

#include "images/picturetrials.h"
#include "problems/finding.h"
#include "problems/referencedamage.h"
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
  QHash<QString, RecordPlaces> places = {};  ///< by the file that holds them
  QHash<QString, NamedPicture> namedPictures =
      {};  ///< by the reference: the same few are named again and again
};

/// A finding; one with a reference only counts when the picture behind that, which is still being tried, has
/// something wrong with it, and tells that.
struct PendingFinding {
  Finding finding;
  QString reference = {};
};
using PendingFindings = QList<PendingFinding>;

/// Everything found in the file of that name; nothing when it isn't there. Where a load of it fails, the
/// finding is of the kind given. The values are read into the state.
PendingFindings checkFile(CheckedSkin& skin, const QString& name, const Layout& layout, FindingKind failure);

/// Those that count, when all pictures have been tried.
Findings settled(CheckedSkin& skin, const PendingFindings& pending);

}  // namespace veneerer
