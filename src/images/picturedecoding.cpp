#include "images/picturedecoding.h"

#include <QBuffer>
#include <QImageReader>

#include "files/plainfile.h"
#include "images/jpegscans.h"
#include "images/pictureformat.h"

namespace veneerer {

namespace {

// What a decoder may allocate at once, for what its format's head doesn't tell.
constexpr int kDecodeLimitMiB = 192;
// Of a picture whose pixels nobody sees: all of its file is read for any size, and this takes the least
// memory.
constexpr QSize kTrialSize(16, 16);
// The head of a bitmap in an icon tells no size to go by; so many bytes of it can't hold too many pixels.
constexpr qint64 kMostIconBytes = 4 * 1024 * 1024;

/// What walking one pixel costs, a byte of grey being 1. A PNG file's bytes are each predicted from their
/// neighbours, and one that comes in passes is walked anew by each.
double pixelWork(const QByteArray& bytes) {
  constexpr int kDepth = 24;  // places in the head
  constexpr int kColours = 25;
  constexpr int kPasses = 28;
  constexpr int kChannels[] = {1, 1, 3, 1, 2, 1, 4};
  if (formatOf(bytes) != PictureFormat::Png || bytes.size() <= kPasses) return 1;
  const auto colours = static_cast<unsigned char>(bytes[kColours]);
  const int channels = colours < std::size(kChannels) ? kChannels[colours] : 4;
  const int bytesOfPixel = channels * (bytes[kDepth] == 16 ? 2 : 1);
  return std::max(1.0, bytesOfPixel / 2.0) * (bytes[kPasses] != 0 ? 2 : 1);
}

bool fits(QSize size, QSize within) {
  return size.width() <= within.width() && size.height() <= within.height();
}

QSize sizeWithin(QSize size, QSize within) {
  return size.scaled(within, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

/// A picture file's bytes in the hands of the one decoder that its head tells.
class Decoder {
public:
  explicit Decoder(const QString& path) : Decoder(readPlainFile(path, kMostPictureBytes).bytes) {}
  explicit Decoder(QByteArray bytes) : bytes_(std::move(bytes)) {
    PictureFormat format = formatOf(bytes_);
    work_ = bytes_.size();
    if (format == PictureFormat::Icon && !openIcon(format)) return;
    if (format == PictureFormat::None) return;
    if (format == PictureFormat::Png) dropPngExtras(bytes_);
    const int scans = format == PictureFormat::Jpeg ? countJpegScans(bytes_) : 0;
    open(format);
    isWithinBounds_ = scans <= kMostJpegScans && pixelsOf(size_) <= kMostPicturePixels;
    // A scan walks blocks, not pixels.
    work_ += static_cast<qint64>(double(pixelsOf(size_)) * pixelWork(bytes_)) + pixelsOf(size_) * scans / 16;
  }

  PictureCost cost() const { return {isWithinBounds_, size_, work_}; }

  /// An empty size asks for the picture's own.
  QImage read(QSize scaled) {
    if (!scaled.isEmpty()) reader_.setScaledSize(scaled);
    QImage image = readExactly();
    // The raster engine's own formats paint fastest; converting once here spares it at every repaint.
    return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                    : QImage::Format_RGB32);
  }

  /// Of its own size where it fits. The head of a damaged file may tell another size than its picture has, or
  /// none; so what comes may be larger.
  QImage readWithin(QSize within) { return read(fits(size_, within) ? QSize() : sizeWithin(size_, within)); }

  QImage readExactly() {
    QImage image = isWithinBounds_ ? reader_.read() : QImage();
    return pixelsOf(image.size()) > kMostPicturePixels ? QImage() : image;
  }

private:
  /// An icon's picture may be a whole PNG file, which is looked at like any other.
  bool openIcon(PictureFormat& format) {
    if (bytes_.size() > kMostIconBytes) return false;
    const QByteArray png = pngOfIcon(bytes_);
    if (png.isEmpty()) return true;
    bytes_ = png;
    format = PictureFormat::Png;
    return true;
  }

  void open(PictureFormat format) {
    QImageReader::setAllocationLimit(kDecodeLimitMiB);
    buffer_.setBuffer(&bytes_);
    buffer_.open(QIODevice::ReadOnly);
    reader_.setAutoDetectImageFormat(false);
    reader_.setFormat(decoderOf(format));
    reader_.setDevice(&buffer_);
    size_ = reader_.size();
    // The decoder knows no size where the first frame is cut off, and decodes what there is of it.
    if (!size_.isValid() && format == PictureFormat::Gif) size_ = gifSize(bytes_);
  }

  QByteArray bytes_;
  QBuffer buffer_;
  QImageReader reader_;
  QSize size_;
  qint64 work_ = 0;
  bool isWithinBounds_ = false;
};

}  // namespace

qint64 pixelsOf(QSize size) {
  return size.isEmpty() ? 0 : qint64(size.width()) * size.height();
}

QImage decodePicture(const QString& path) {
  return Decoder(path).read(QSize());
}

QImage decodeExactly(const QByteArray& bytes) {
  return Decoder(bytes).readExactly();
}

QImage decodeThumbnail(const QString& path, QSize within) {
  const QImage image = Decoder(path).readWithin(within);
  return fits(image.size(), within) ? image
                                    : image.scaled(sizeWithin(image.size(), within), Qt::IgnoreAspectRatio,
                                                   Qt::SmoothTransformation);
}

PictureCost costOfPicture(const QString& path) {
  return Decoder(path).cost();
}

PictureTrial tryPicture(const QString& path, const std::function<bool(const PictureCost&)>& affords) {
  Decoder decoder(path);
  const bool isAfforded = affords(decoder.cost());
  if (!decoder.cost().canBeDecoded) return PictureTrial::Broken;
  if (!isAfforded) return PictureTrial::Untried;
  return decoder.readWithin(kTrialSize).isNull() ? PictureTrial::Broken : PictureTrial::Fine;
}

}  // namespace veneerer
