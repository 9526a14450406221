// What an element shows: a picture file or a picture drawn by the program. A Picture is a small value; the
// file behind it is decoded when its pixels are asked for, once for all elements that show it. Decoded pixels
// are kept within a budget, so those of a picture that wasn't seen for long may be decoded once more.
#pragma once

#include <QImage>
#include <QList>
#include <QString>
#include <functional>
#include <memory>

namespace veneerer {

class PictureCache;
class PictureFile;
struct PictureNeed;

class Picture {
public:
  /// No picture.
  Picture() = default;

  explicit Picture(std::shared_ptr<PictureFile> file) : file_(std::move(file)) {}

  /// A picture that was drawn, not loaded; it has no path.
  static Picture drawn(const QImage& image);

  bool isNull() const { return !file_; }
  bool isDrawn() const;

  /// The full path of the file, empty for no picture and for a drawn one.
  QString path() const;

  /// True for a file that holds an icon or a cursor, which can't give a button its outline.
  bool isIcon() const;

  /// The decoded picture; a null image when there is none or the file can't be decoded. Waits for the
  /// decoding where it isn't at hand. Safe to call from several threads.
  QImage image() const;

  /// What of it serves the need; waits as image() does.
  QImage image(const PictureNeed& need) const;

  /// The picture for being scaled to that size in device pixels: of a very large one a smaller copy, if it
  /// has pixels enough. Where the store has somebody who fetches pictures, one that isn't at hand in time is
  /// a null image for now. Only for the thread that set the store up.
  QImage shown(QSize devicePixels) const;

  /// As shown(), for being painted in its own size: at least so much of its top left corner as it has.
  QImage shownCorner(QSize pixels) const;

  /// The size of the picture in its file, pixels; invalid before it was decoded for the first time, empty for
  /// one that can't be.
  QSize size() const;

  /// The picture in the largest size of its proportions within that one, never larger than it is. What is
  /// decoded for this alone isn't kept. Waits for the decoding; safe to call from several threads.
  QImage thumbnail(QSize within) const;

  /// A number that differs between any two pictures alive at the same time; a key for caches.
  quintptr id() const { return reinterpret_cast<quintptr>(file_.get()); }

  bool operator==(const Picture& other) const { return file_ == other.file_; }

private:
  std::shared_ptr<PictureFile> file_;
};

/// Loads pictures and keeps one copy per file and time stamp for as long as an element shows it. A file that
/// was written anew since is a new picture.
class PictureStore {
public:
  PictureStore();
  /// A budget of its own for the decoded pixels, bytes.
  explicit PictureStore(qint64 decodedBytes);
  ~PictureStore();

  /// The picture of that file: a bitmap, JPEG, GIF, PNG or icon. Only its first bytes are read, it isn't
  /// decoded yet. A file that isn't there, or holds something else, gives a null Picture.
  Picture load(const QString& path);

  /// From now on a picture that is to be shown and isn't at hand is asked of that function, which sees to it
  /// that somebody calls image() for that need on another thread and may wait a moment for it. A null
  /// function has them decoded on the spot again.
  void fetchWith(std::function<void(const Picture&, const PictureNeed&)> fetch);

  /// A new sight, in which those pictures are seen at once. From the second one on what isn't asked for in
  /// the last two goes where all decoded pixels take more than that; without a word only the budget bounds
  /// them.
  void look(const QList<Picture>& pictures, qint64 enoughBytes);

  /// What the decoded pictures take now, bytes.
  qint64 decodedBytes() const;

private:
  struct Entries;
  std::unique_ptr<Entries> entries_;
};

}  // namespace veneerer
