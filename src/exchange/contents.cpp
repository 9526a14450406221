#include "exchange/contents.h"

#include "exchange/texts.h"

namespace veneerer {

FolderTree contentsOf(const QString& folder, const ExchangeLimits& limits) {
  FolderTree tree = folderTree(folder, 2 * qsizetype(limits.files));
  if (tree.isCut || tree.files.size() > limits.files || tree.folders.size() > limits.files)
    throw ExchangeError(
        ExchangeTexts::tr("%1: the folder holds more than %2 files").arg(folder).arg(limits.files));
  if (tree.bytes() > limits.bytes)
    throw ExchangeError(ExchangeTexts::tr("%1: the files take more than %2 MiB")
                            .arg(folder)
                            .arg(static_cast<double>(limits.bytes) / (1024 * 1024)));
  return tree;
}

}  // namespace veneerer
