// Files of one folder that are replaced together: at any moment each is wholly old or wholly new, also when
// the program is killed.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <stdexcept>
#include <vector>

#include "files/disk.h"
#include "files/leftovers.h"

namespace veneerer {

/// A file as it is to be.
struct NewFile {
  QString name;  ///< in the folder ("menu.ini") or below it ("images/Menu.bmp"), or such a file's full path
  QByteArray bytes;
};

/// Why a file can't be written, in words that may follow its name and a colon.
struct WriteFault {
  QString name;  ///< as it stands in NewFile
  QString reason;
};

/// A file couldn't be written although nothing spoke against it ahead; some may be replaced already.
class ReplaceError : public std::runtime_error {
public:
  explicit ReplaceError(const WriteFault& fault)
      : std::runtime_error((fault.name + QStringLiteral(": ") + fault.reason).toStdString()), fault_(fault) {}
  const WriteFault& fault() const { return fault_; }

private:
  WriteFault fault_;
};

/// Replaces files of one folder. What its names lead to, links resolved, lies in that folder or below it.
class FileReplacement {
public:
  /// Looks at the folder and at what bears the names, and changes nothing. The disk must outlive this object.
  FileReplacement(Disk& disk, const QString& folder, std::vector<NewFile> files);

  /// The first file that can't be written: the folder is gone, a link leads out of it or nowhere, no plain
  /// file bears the name, writing isn't permitted. Nothing when all can.
  const std::optional<WriteFault>& refusal() const { return refusal_; }

  /// Writes all files beside their targets, then puts them in place one by one. In a folder that takes no new
  /// files they are written in place. Removes what a killed replacement left over. Not to be called after a
  /// refusal. Throws ReplaceError; what was written beside is removed then.
  void run();

private:
  struct Target {
    NewFile file;
    QString path;  ///< links resolved
    bool exists;
    bool isInPlace;     ///< its folder takes no new file
    QString temporary;  ///< where the new file stands until it is put in place
  };

  QString addTarget(NewFile file);
  QString faultOf(const Target& target) const;
  void removeLeftOvers();
  void writeBeside();
  void putInPlace();
  void removeTemporaries();

  Disk& disk_;
  QString folder_;  ///< links resolved
  std::optional<WriteFault> refusal_;
  std::vector<Target> targets_;
};

}  // namespace veneerer
