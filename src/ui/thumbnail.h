// A small view of an element's picture.
#pragma once

#include <QAbstractButton>
#include <QFutureWatcher>
#include <QImage>

#include "ui/bindings.h"

namespace veneerer {

/// Shows a picture in its proportions. Pictures are decoded in the thumbnail's size on another thread, at its
/// first sight: nobody waits for them, and nothing else is kept of them. A click is the click event of the
/// element.
class Thumbnail : public QAbstractButton {
  Q_OBJECT

public:
  /// The element has a Picture.
  Thumbnail(const Ui& ui, Element& element);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  const Picture& picture() const;
  QSize devicePixels() const;
  void fetch();
  void fetched();

  Element& element_;
  PictureFetcher& pictures_;
  const DiskFollower& disk_;
  QFutureWatcher<QImage> watcher_;
  QImage shown_;            ///< no larger than the thumbnail, null while nothing can be shown
  quintptr shownId_ = 0;    ///< the picture that shown_ was made of
  quintptr fetchedId_ = 0;  ///< the picture that was asked for last
  QSize fetchedSize_;       ///< and in which size, device pixels
};

}  // namespace veneerer
