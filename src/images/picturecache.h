// The decoded pixels of all pictures of a program, within one budget.
#pragma once

#include <QCache>
#include <QImage>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

#include "images/picturecopies.h"

namespace veneerer {

class Picture;

/// What all decoded pictures together may take, bytes.
inline constexpr qint64 kDecodedBytes = 256LL * 1024 * 1024;

/// Keeps copies of decoded pictures as long as they fit into the budget; those that were asked for least
/// recently go first. Whole pictures have a share of their own, so that one of them doesn't push many small
/// copies out: 3 of 4 parts, as much as the largest picture takes, and what the copies leave. Safe to use
/// from several threads, but for its function.
class PictureCache {
public:
  explicit PictureCache(qint64 mostBytes) : mostBytes_(mostBytes) {}

  /// A copy of the picture of that key, from now on the most recent one.
  std::optional<QImage> find(const void* key, PictureCopy copy);
  void keep(const void* key, PictureCopy copy, const QImage& image);
  /// Drops all copies of a picture.
  void drop(const void* key);
  /// What is kept now, bytes.
  qint64 bytes() const;

  /// Gets what is to be shown and isn't at hand; null where that is decoded on the spot.
  std::function<void(const Picture&, const PictureNeed&)> fetch;

  /// To be held while a picture is decoded, so that one at a time takes a decoder's memory.
  std::mutex decoding;

private:
  const qint64 mostBytes_;
  mutable std::mutex mutex_;
  QCache<std::pair<const void*, int>, QImage> copies_;  // by picture and PictureCopy
  QCache<const void*, QImage> wholes_;
};

}  // namespace veneerer
