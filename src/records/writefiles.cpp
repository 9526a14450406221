#include "records/writefiles.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "files/plainfile.h"
#include "records/layoutreader.h"
#include "records/texts.h"

namespace veneerer {

namespace {

int changedOf(const QString& folder, const std::vector<NewFile>& files) {
  const auto isChanged = [&](const NewFile& file) {
    const FileContent before = readPlainFile(QDir(folder).filePath(file.name), kMostRecordBytes);
    return !before.isRead() || before.bytes != file.bytes;
  };
  return static_cast<int>(std::ranges::count_if(files, isChanged));
}

// What no load would take isn't ours to replace.
void refuseLarge(const QString& folder, const std::vector<NewFile>& files) {
  for (const NewFile& file : files)
    if (QFileInfo(QDir(folder).filePath(file.name)).size() > kMostRecordBytes)
      throw WriteRefused(
          {file.name, RecordTexts::tr("a file of this name is there and too large for a record file")});
}

}  // namespace

WrittenFiles writeRecordFiles(Disk& disk, const QString& folder, std::vector<NewFile> files) {
  refuseLarge(folder, files);
  const WrittenFiles written{static_cast<int>(files.size()), changedOf(folder, files)};
  writeFiles(disk, folder, std::move(files));
  return written;
}

void sayWritten(Notes& notes, const QString& folder, const WrittenFiles& written) {
  const QString files =
      written.all == 1 ? RecordTexts::tr("1 file") : RecordTexts::tr("%1 files").arg(written.all);
  const QString changed = written.changed == 0 ? RecordTexts::tr("none") : QString::number(written.changed);
  notes.say(RecordTexts::tr("Saved in %1: %2, %3 changed.").arg(QFileInfo(folder).fileName(), files, changed),
            NoteKind::Saved);
}

void writeFiles(Disk& disk, const QString& folder, std::vector<NewFile> files) {
  FileReplacement replacement(disk, folder, std::move(files));
  if (replacement.refusal()) throw WriteRefused(*replacement.refusal());
  try {
    replacement.run();
  } catch (const ReplaceError& error) {
    throw RecordError(error.fault().name, 0, {}, {},
                      RecordTexts::tr("the file can't be written: %1").arg(error.fault().reason), {folder});
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
