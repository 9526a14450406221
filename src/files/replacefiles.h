// Files of one folder that are replaced together: at any moment each is wholly old or wholly new, also when
// the program is killed.
#pragma once

#include <QByteArray>
#include <QString>
#include <stdexcept>
#include <vector>

#include "files/disk.h"

namespace veneerer {

/// A file as it is to be.
struct NewFile {
  QString name;  ///< within the folder
  QByteArray bytes;
};

/// A file couldn't be written although nothing spoke against it ahead; some may be replaced already.
class ReplaceError : public std::runtime_error {
public:
  ReplaceError(const QString& name, const QString& reason)
      : std::runtime_error((name + QStringLiteral(": ") + reason).toStdString()),
        name_(name),
        reason_(reason) {}
  const QString& name() const { return name_; }
  const QString& reason() const { return reason_; }

private:
  QString name_;
  QString reason_;
};

/// Replaces files of one folder.
class FileReplacement {
public:
  /// Looks at the folder and at what bears the names, and changes nothing. The disk must outlive this object.
  FileReplacement(Disk& disk, const QString& folder, std::vector<NewFile> files);

  /// What keeps the files from being written, as a sentence that names the first such file: the folder is
  /// gone, a link leads out of it, no plain file bears the name, writing isn't permitted. Empty when nothing
  /// does.
  const QString& refusal() const { return refusal_; }

  /// Writes all files beside their targets, then puts them in place one by one. In a folder that takes no new
  /// files they are written in place. Not to be called after a refusal. Throws ReplaceError; what was written
  /// beside is removed then.
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
  void writeBeside();
  void putInPlace();
  void removeTemporaries();

  Disk& disk_;
  QString folder_;
  QString refusal_;
  std::vector<Target> targets_;
};

/// True for the name of a file that a killed replacement may have left over. Whoever lists a Skin's folder
/// passes it over; the next replacement in the folder removes it.
bool isLeftOver(const QString& name);

}  // namespace veneerer
