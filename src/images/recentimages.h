// Images in the order in which they were asked for.
#pragma once

#include <QHash>
#include <QImage>
#include <list>
#include <utility>

namespace veneerer {

/// Keeps images by a key until they are removed. Moments are numbers that never fall.
class RecentImages {
public:
  using Key = std::pair<const void*, int>;

  /// The image of that key, from now on the most recent one; null for none.
  const QImage* find(const Key& key, qint64 now);
  /// In the place of the one that has that key.
  void insert(const Key& key, const QImage& image, qint64 now);
  void remove(const Key& key);

  /// Removes those that were asked for least recently until the others take no more than that, bytes.
  void shrink(qint64 mostBytes);
  void removeOldest();
  /// When the least recent one was asked for; the largest number there is where there are no images.
  qint64 oldest() const;

  /// What all take, at least 1 each.
  qint64 bytes() const { return bytes_; }

private:
  struct Kept {
    Key key;
    QImage image;
    qint64 asked;
  };
  using Place = std::list<Kept>::iterator;
  void remove(Place place);

  std::list<Kept> kept_;  ///< the least recent one first
  QHash<Key, Place> places_;
  qint64 bytes_ = 0;
};

/// What an image takes, at least 1.
qint64 bytesOf(const QImage& image);

}  // namespace veneerer
