// Decodes pictures while the windows stay alive.
#pragma once

#include <QDeadlineTimer>
#include <QFuture>
#include <QObject>
#include <QThreadPool>

#include "images/picturecopies.h"
#include "ui/picturesinsight.h"

namespace veneerer {

/// What a window is to show and isn't decoded yet is decoded on another thread. The interface waits for it as
/// long as a frame lasts, for all pictures of one pass through its loop together; what takes longer is told
/// when it is there. One thread does it all, so that only one picture at a time takes a decoder's memory.
class PictureFetcher : public QObject {
  Q_OBJECT

public:
  /// Fetches for the pictures of the operator's state from now on, which must outlive the fetcher.
  explicit PictureFetcher(Operator& hands);
  ~PictureFetcher() override;

  /// While it lives, what is painted is decoded on the spot: nothing is missing in a picture that is taken.
  class Rest {
  public:
    explicit Rest(PictureFetcher& fetcher) : fetcher_(fetcher) { fetcher.state_.pictures.fetchWith({}); }
    ~Rest() { fetcher_.begin(); }
    Rest(const Rest&) = delete;
    Rest& operator=(const Rest&) = delete;

  private:
    PictureFetcher& fetcher_;
  };

  /// Which of the pictures are kept.
  PicturesInSight& inSight() { return inSight_; }

  /// Picture::thumbnail on the other thread, behind all that is to be shown at full size.
  QFuture<QImage> thumbnail(const Picture& picture, QSize within);

Q_SIGNALS:
  /// A picture that was painted without its pixels has them now.
  void fetched(const veneerer::Picture& picture);

private:
  struct Task {
    Picture picture;
    PictureNeed need;
    bool operator==(const Task&) const = default;
  };
  void begin();
  void fetch(const Task& task);
  int patience();
  void arrived(const Task& task);

  State& state_;
  PicturesInSight inSight_;
  Attachment watching_;
  QDeadlineTimer deadline_;
  bool isWaiting_ = false;  ///< the deadline counts for this pass through the loop
  QList<Task> asked_;       ///< under way
  QList<Task> late_;        ///< of these, what was painted without
  QList<Task> seen_;        ///< has arrived since the last change of any element or of the sight
  QThreadPool pool_;
};

}  // namespace veneerer
