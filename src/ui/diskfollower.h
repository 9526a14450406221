// What is shown of the Skin follows the disk.
#pragma once

#include <QFutureWatcher>

#include "problems/shownreferences.h"
#include "ui/filewatch.h"
#include "ui/operator.h"
#include "ui/picturefetcher.h"

namespace veneerer {

/// Watches the pictures that are shown or named and the record files. A picture that another program wrote is
/// shown anew, without a step of undo; one that can't be decoded leaves the old one in sight. Record files
/// are only told of. It also knows which elements miss the picture that their reference names.
class DiskFollower : public QObject {
  Q_OBJECT

public:
  DiskFollower(Operator& hands, PictureFetcher& pictures, std::chrono::milliseconds rest = kFileRest);

  /// Whether the element, of the canvas or a thumbnail, stands for a reference that leads to no file.
  bool misses(const Element& element) const { return missing_.contains(&element); }
  /// All of them.
  const QSet<const Element*>& missing() const { return missing_; }

  /// The program has the focus again.
  void look();

Q_SIGNALS:
  /// Other programs wrote these files of the Skin.
  void filesChanged(const QSet<QString>& paths);
  /// Among them these record files, in the Skin's folder.
  void recordsChanged(const QStringList& names);
  /// missing() is another.
  void missingChanged();

private:
  void changed(const Change& change);
  void refresh();
  void refreshMissing();
  QSet<QString> picturePaths() const;
  QSet<QString> recordPaths() const;
  void told(const QSet<QString>& paths);
  void readAnew(const QString& path);

  Operator& hands_;
  PictureFetcher& pictures_;
  ShownReferences references_;
  QStringList recordNames_;
  FileWatch files_;
  QTimer refreshing_;
  QSet<const Element*> missing_;
  Attachment watching_;
};

}  // namespace veneerer
