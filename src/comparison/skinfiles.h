// The files of one Skin as they lie on the disk.
#pragma once

#include <QHash>
#include <QStringList>
#include <optional>

#include "comparison/recordtext.h"
#include "forms/state.h"
#include "platform/skinfolder.h"
#include "skin/catalogue.h"

namespace veneerer {

class SkinFiles {
public:
  SkinFiles(const SkinFolder& folder, const Screen& screen);

  /// All files of the folder and of those in it, and the names of all record files, there or not.
  QStringList names() const;
  bool has(const QString& name) const { return paths_.contains(name); }
  /// Where a file lies, links resolved.
  QString path(const QString& name) const { return paths_.value(name); }
  /// Whether it is compared line by line: a record file, or a cover file.
  bool isRecord(const QString& name) const;
  /// A record file or a cover file; nothing when it isn't there. Throws RecordError where it can't be read.
  std::optional<QByteArray> bytes(const QString& name) const;
  /// Such a file with what its lines are about.
  RecordText text(const QString& name, const QByteArray& bytes);

private:
  Layout layoutOf(const QString& name, const QByteArray& bytes);

  SkinFolder folder_;
  Screen screen_;
  State state_;  ///< what files are read into, one after the other
  QHash<QString, QString> paths_;
  QHash<QString, MakeLayout> layouts_;  ///< by the names under which such files are read or written
};

}  // namespace veneerer
