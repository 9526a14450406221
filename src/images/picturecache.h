// The decoded pixels of all pictures of a program, within one budget.
#pragma once

#include <QCache>
#include <functional>
#include <mutex>
#include <optional>

#include "images/picturedecoding.h"

namespace veneerer {

class Picture;

/// What all decoded pictures together may take, bytes.
inline constexpr qint64 kDecodedBytes = 512LL * 1024 * 1024;

/// Keeps decoded pictures as long as they fit into the budget; those that were asked for least recently go
/// first. Safe to use from several threads, but for its function.
class PictureCache {
public:
  explicit PictureCache(qint64 mostBytes) : kept_(mostBytes) {}

  /// The picture kept under that key, from now on the most recent one.
  std::optional<DecodedPicture> find(const void* key);
  void keep(const void* key, const DecodedPicture& picture);
  void drop(const void* key);
  /// What is kept now, bytes.
  qint64 bytes() const;

  /// Gets what is to be shown and isn't at hand; null where that is decoded on the spot.
  std::function<void(const Picture&)> fetch;

private:
  mutable std::mutex mutex_;
  QCache<const void*, DecodedPicture> kept_;
};

}  // namespace veneerer
