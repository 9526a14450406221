// From the bytes of a picture file to its pixels. A stranger's picture may claim any size and cost any time;
// what is beyond the bounds here can't be decoded.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <functional>

namespace veneerer {

/// The most pixels that a picture file may hold: room for every screen that a jukebox has.
inline constexpr qint64 kMostPicturePixels = 48LL * 1024 * 1024;

/// The most bytes of a picture file: a bitmap of the most pixels, 4 bytes each, and its head.
inline constexpr qint64 kMostPictureBytes = 4 * kMostPicturePixels + 1024 * 1024;

/// The most scans of a JPEG file.
inline constexpr int kMostJpegScans = 100;

qint64 pixelsOf(QSize size);

/// The picture of that file in a format that paints fast; null for one that can't be decoded.
QImage decodePicture(const QString& path);

/// The picture of a file's bytes as they hold it: its palette, its depth, its alpha. Null as above.
QImage decodeExactly(const QByteArray& bytes);

/// decodePicture() in the largest size of its proportions within that one, never larger than it is.
QImage decodeThumbnail(const QString& path, QSize within);

/// How large the picture of a file is and what decoding it costs, from what can be told without doing it.
struct PictureCost {
  bool canBeDecoded = false;  ///< false for what is beyond the bounds, or no picture
  QSize size;       ///< pixels; as the file's head tells, so the pixels themselves may yet be damaged
  qint64 work = 0;  ///< pixels to walk and bytes to read; of the slowest some 50 million take a second
};
PictureCost costOfPicture(const QString& path);

/// What trying to decode a file gave; one beyond the allowance isn't tried.
enum class PictureTrial { Fine, Broken, Untried };

/// Decodes a picture for nothing but to know that it can be, unless it costs more than is afforded: that is
/// asked once, before its pixels are walked.
PictureTrial tryPicture(const QString& path, const std::function<bool(const PictureCost&)>& affords);

}  // namespace veneerer
