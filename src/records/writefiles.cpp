#include "records/writefiles.h"

namespace veneerer {

void writeFiles(Disk& disk, const QString& folder, std::vector<NewFile> files) {
  FileReplacement replacement(disk, folder, std::move(files));
  if (replacement.refusal()) throw WriteRefused(*replacement.refusal());
  try {
    replacement.run();
  } catch (const ReplaceError& error) {
    throw RecordError(error.fault().name, 0, {}, {},
                      QStringLiteral("the file can't be written: ") + error.fault().reason);
  }
}

bool writeOrTell(Dialogs& dialogs, const QString& title, const std::function<void()>& command) {
  try {
    command();
    return true;
  } catch (const WriteRefused& refused) {
    dialogs.inform(title, QStringLiteral("Nothing is written. ") + refused.message());
    return false;
  }
}

}  // namespace veneerer
