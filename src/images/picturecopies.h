// What is kept of a decoded picture: no more of it than is shown.
#pragma once

#include <QImage>
#include <QSize>

namespace veneerer {

/// Pixels above this are walked too slowly to be scaled again and again, and take too much memory for many
/// pictures: of a larger picture copies within that are kept.
inline constexpr qint64 kMostCopiedPixels = 4LL * 1024 * 1024;

/// What of a picture is to be shown.
struct PictureNeed {
  enum class Use {
    Scaled,   ///< all of it in that size or a smaller one
    Natural,  ///< so much of its top left corner, in its own size
  };
  Use use = Use::Scaled;
  QSize size;  ///< pixels

  bool operator==(const PictureNeed&) const = default;
};

enum class PictureCopy {
  Reduced,  ///< all of it, its proportions kept; a picture within kMostCopiedPixels is its own reduced copy
  Corner,   ///< the top left corner of a larger one, in its own size
  Whole,    ///< a larger one as it is
};

/// The size of a picture's reduced copy.
QSize reducedSize(QSize picture);

/// The smallest copy of a picture of that size that serves. Of a corner the need tells how much of it.
PictureCopy copyFor(const PictureNeed& need, QSize picture);

/// Makes that copy; null of no picture.
QImage copyOf(const QImage& picture, const PictureNeed& need);

/// Whether a size is as large as another in both directions.
bool covers(QSize size, QSize other);

}  // namespace veneerer
