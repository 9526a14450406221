// Files written in one step, and how the operator hears of what stands against it.
#pragma once

#include <functional>
#include <vector>

#include "elements/notes.h"
#include "files/replacefiles.h"
#include "platform/platform.h"
#include "records/recorderror.h"
#include "records/texts.h"

namespace veneerer {

/// A look ahead found a file that can't be written; nothing has changed. Whoever runs a command tells it and
/// goes on.
class WriteRefused : public RecordError {
public:
  explicit WriteRefused(const WriteFault& fault) : RecordError(fault.name, 0, {}, {}, fault.reason) {}
};

/// Replaces files of that folder together. Throws WriteRefused when one of them can't be written, and
/// RecordError when writing fails all the same: each file is wholly old or wholly new then.
void writeFiles(Disk& disk, const QString& folder, std::vector<NewFile> files);

/// Files that were written together.
struct WrittenFiles {
  int all = 0;
  int changed = 0;  ///< of these, how many hold other bytes than before
};

/// The same for record and cover files, of which one above kMostRecordBytes isn't replaced.
WrittenFiles writeRecordFiles(Disk& disk, const QString& folder, std::vector<NewFile> files);

/// Says what a save wrote into that Skin's folder: "Saved in Mine: 59 files, 3 changed."
void sayWritten(Notes& notes, const QString& folder, const WrittenFiles& written);

/// Runs a command that writes. False when it was refused: a box of that title has told why, behind that
/// sentence.
bool writeOrTell(Dialogs& dialogs, const QString& title, const std::function<void()>& command,
                 const QString& lead = RecordTexts::tr("Nothing is written. "));

}  // namespace veneerer
