#include "skin/skinsaver.h"

#include "records/layoutwriter.h"
#include "records/recordwriter.h"
#include "skin/catalogue.h"

namespace veneerer {

void saveRecords(State& state, const SkinFolder& folder) {
  struct File {
    QString name;
    QByteArray bytes;
  };
  std::vector<File> files;
  // All is composed before the first file is opened: a fault of ours leaves the folder as it was.
  for (const SaveEntry& entry : saveOrder()) {
    const Layout layout = entry.layout(state);
    if (!layout.isEmpty()) files.push_back({savedName(entry, layout), composeRecords(layout)});
  }
  for (const File& file : files) writeRecordFile(folder, file.name, file.bytes);
}

void saveLockedButtons(State& state, const SkinFolder& folder) {
  const Layout layout = lockedButtonFile(state);
  writeRecordFile(folder, layout.fileName(), composeRecords(layout));
}

}  // namespace veneerer
