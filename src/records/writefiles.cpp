#include "records/writefiles.h"

#include <QDir>
#include <QFileInfo>

#include "records/layoutreader.h"

namespace veneerer {

namespace {

// What no load would take isn't ours to replace.
void refuseLarge(const QString& folder, const std::vector<NewFile>& files) {
  for (const NewFile& file : files)
    if (QFileInfo(QDir(folder).filePath(file.name)).size() > kMostRecordBytes)
      throw WriteRefused(
          {file.name, QStringLiteral("a file of this name is there and too large for a record file")});
}

}  // namespace

void writeRecordFiles(Disk& disk, const QString& folder, std::vector<NewFile> files) {
  refuseLarge(folder, files);
  writeFiles(disk, folder, std::move(files));
}

void writeFiles(Disk& disk, const QString& folder, std::vector<NewFile> files) {
  FileReplacement replacement(disk, folder, std::move(files));
  if (replacement.refusal()) throw WriteRefused(*replacement.refusal());
  try {
    replacement.run();
  } catch (const ReplaceError& error) {
    throw RecordError(error.fault().name, 0, {}, {},
                      QStringLiteral("the file can't be written: ") + error.fault().reason, {folder});
  }
}

bool writeOrTell(Dialogs& dialogs, const QString& title, const std::function<void()>& command,
                 const QString& lead) {
  try {
    command();
    return true;
  } catch (const WriteRefused& refused) {
    dialogs.inform(title, lead + refused.message());
    return false;
  }
}

}  // namespace veneerer
