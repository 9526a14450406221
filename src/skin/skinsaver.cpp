#include "skin/skinsaver.h"

#include "records/layoutwriter.h"
#include "records/writefiles.h"
#include "skin/catalogue.h"

namespace veneerer {

std::vector<NewFile> composedRecords(State& state, const Dress& dress) {
  std::vector<NewFile> files;
  for (const SaveEntry& entry : saveOrder()) {
    const Layout layout = entry.layout(state);
    if (!layout.isEmpty()) files.push_back({savedName(entry, layout), composeRecords(layout, dress)});
  }
  return files;
}

WrittenFiles saveRecords(State& state, Disk& disk, const SkinFolder& folder) {
  return writeRecordFiles(disk, folder.path(), composedRecords(state));
}

void saveLockedButtons(State& state, const Platform& platform, const SkinFolder& folder) {
  const Layout layout = lockedButtonFile(state);
  writeOrTell(platform.dialogs, state.form2.caption(), [&] {
    sayWritten(state.notes, folder.path(),
               writeRecordFiles(platform.disk, folder.path(), {{layout.fileName(), composeRecords(layout)}}));
  });
}

}  // namespace veneerer
