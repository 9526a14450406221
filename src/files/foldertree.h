// What a stranger's folder holds, listed without ever leaving it.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace veneerer {

/// A plain file of a folder.
struct TreeFile {
  QString name;  ///< from the folder on, with forward slashes: "images/Menu.bmp"
  QString path;  ///< where it lies, links resolved
  qint64 bytes;
};

/// What of a folder isn't taken along, in words that may follow its name and a colon.
struct LeftOut {
  QString name;  ///< as of TreeFile
  QString reason;
};

struct FolderTree {
  QStringList folders;  ///< below the folder, each ahead of what is in it
  QList<TreeFile> files;
  QList<LeftOut> leftOut;
  bool isCut = false;  ///< there is more than was asked for

  /// All files together.
  qint64 bytes() const;
};

/// Everything in the folder and below it, sorted by name. A link to a plain file of the folder counts as a
/// file; links that lead elsewhere or to a folder, pipes, devices and what may not be read are left out.
/// Names that a killed program left over are passed over. Listing ends behind so many entries.
FolderTree folderTree(const QString& folder, qsizetype mostEntries);

}  // namespace veneerer
