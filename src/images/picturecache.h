// The decoded pixels of all pictures of a program, within one budget.
#pragma once

#include <QImage>
#include <QList>
#include <functional>
#include <mutex>
#include <optional>

#include "images/picturecopies.h"
#include "images/recentimages.h"

namespace veneerer {

class Picture;

/// What all decoded pictures together may take, bytes.
inline constexpr qint64 kDecodedBytes = 256LL * 1024 * 1024;

/// Keeps copies of decoded pictures as long as they fit into the budget; those that were asked for least
/// recently go first. Whole pictures have a share of their own, so that one of them doesn't push many small
/// copies out: 3 of 4 parts, as much as the largest picture takes, and what the copies leave. Safe to use
/// from several threads, but for its function.
///
/// Who shows one sight after the other tells so, and what is enough for all that isn't seen any more: then
/// the budget is there for the last two sights alone.
class PictureCache {
public:
  explicit PictureCache(qint64 mostBytes) : mostBytes_(mostBytes), enoughBytes_(mostBytes) {}

  /// A copy of the picture of that key, from now on the most recent one.
  std::optional<QImage> find(const void* key, PictureCopy copy);
  void keep(const void* key, PictureCopy copy, const QImage& image);
  /// Drops all copies of a picture.
  void drop(const void* key);
  /// What is kept now, bytes.
  qint64 bytes() const;

  /// A new sight, in which those pictures are seen at once. What of them is kept, and all that is asked for
  /// until the sight behind the next, goes only where the budget ends. The rest goes as soon as everything
  /// together takes more than that.
  void look(const QList<const void*>& keys, qint64 enoughBytes);

  /// Gets what is to be shown and isn't at hand; null where that is decoded on the spot.
  std::function<void(const Picture&, const PictureNeed&)> fetch;

  /// To be held while a picture is decoded, so that one at a time takes a decoder's memory.
  std::mutex decoding;

private:
  RecentImages& imagesOf(PictureCopy copy);
  void put(const RecentImages::Key& key, const QImage& image, RecentImages& into, qint64 mostBytes);
  void dropUnseen();

  const qint64 mostBytes_;
  mutable std::mutex mutex_;
  qint64 enoughBytes_;
  qint64 now_ = 0;       ///< counts what is asked for
  qint64 sight_ = 0;     ///< when the sight began
  qint64 previous_ = 0;  ///< when the one before it did
  RecentImages copies_;
  RecentImages wholes_;
};

}  // namespace veneerer
