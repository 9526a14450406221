// What an element shows: a picture file or a picture drawn by the program. A Picture is a small value; the
// file behind it is decoded at the first call of image(), once for all elements that show it.
#pragma once

#include <QImage>
#include <QString>
#include <memory>

namespace veneerer {

class PictureFile;

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

  /// The decoded picture; a null image when there is none or the file can't be decoded. Safe to call from
  /// several threads.
  const QImage& image() const;

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
  ~PictureStore();

  /// The picture of that file: a bitmap, JPEG, GIF, PNG or icon. Only its first bytes are read, it isn't
  /// decoded yet. A file that isn't there, or holds something else, gives a null Picture.
  Picture load(const QString& path);

private:
  struct Entries;
  std::unique_ptr<Entries> entries_;
};

}  // namespace veneerer
