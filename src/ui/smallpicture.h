// A picture of a file, small, for being looked at.
#pragma once

#include <QFutureWatcher>
#include <QLabel>

#include "ui/bindings.h"

namespace veneerer {

/// Decodes on the fetcher's thread, and shows nothing until that is done.
class SmallPicture : public QLabel {
public:
  SmallPicture(const Ui& ui, const QString& name);

  /// Shows the picture of that file; false where the file holds none or isn't there.
  bool show(const QString& path);
  void clear();

private:
  void fetched();

  PictureFetcher& fetcher_;
  PictureStore store_;  ///< nothing that is only looked at here takes room in the Skin's
  QFutureWatcher<QImage> watcher_;
};

}  // namespace veneerer
