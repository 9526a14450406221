#include "looks/gifwriter.h"

#include <gif_lib.h>

#include <memory>

#include "elements/require.h"

namespace veneerer::looks {

namespace {

struct ColourMapDeleter {
  void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using ColourMap = std::unique_ptr<ColorMapObject, ColourMapDeleter>;

// The library wants a table whose size is a power of two; what is over is black.
ColourMap colourMap(const QImage& frame) {
  const int size = 1 << GifBitSize(std::max(2, frame.colorCount()));
  ColourMap map(GifMakeMapObject(size, nullptr));
  require(map != nullptr, "a colour table has a power of two of entries");
  for (int i = 0; i < size; ++i) {
    const QRgb colour = i < frame.colorCount() ? frame.color(i) : qRgb(0, 0, 0);
    map->Colors[i] = {static_cast<GifByteType>(qRed(colour)), static_cast<GifByteType>(qGreen(colour)),
                      static_cast<GifByteType>(qBlue(colour))};
  }
  return map;
}

int appendBytes(GifFileType* file, const GifByteType* bytes, int count) {
  static_cast<QByteArray*>(file->UserData)->append(reinterpret_cast<const char*>(bytes), count);
  return count;
}

// A file that is composed in memory: writing fails only where our own call is wrong.
class GifFile {
public:
  explicit GifFile(QByteArray& out) : file_(EGifOpen(&out, appendBytes, nullptr)) {
    require(file_ != nullptr, "a GIF file can be begun");
    EGifSetGifVersion(file_, true);
  }
  ~GifFile() { EGifCloseFile(file_, nullptr); }
  GifFile(const GifFile&) = delete;
  GifFile& operator=(const GifFile&) = delete;

  void putScreen(const QImage& frame) {
    constexpr int kColourBits = 8;
    done(EGifPutScreenDesc(file_, frame.width(), frame.height(), kColourBits, 0, colourMap(frame).get()));
  }

  void putEndlessLoop() {
    constexpr unsigned char kLoopForever[] = {1, 0, 0};
    done(EGifPutExtensionLeader(file_, APPLICATION_EXT_FUNC_CODE));
    done(EGifPutExtensionBlock(file_, 11, "NETSCAPE2.0"));
    done(EGifPutExtensionBlock(file_, sizeof kLoopForever, kLoopForever));
    done(EGifPutExtensionTrailer(file_));
  }

  void putControl(const GifOptions& options) {
    const bool isSeeThrough = options.transparent >= 0;
    const GraphicsControlBlock control{isSeeThrough ? DISPOSE_BACKGROUND : DISPOSAL_UNSPECIFIED, false,
                                       options.hundredths,
                                       isSeeThrough ? options.transparent : NO_TRANSPARENT_COLOR};
    GifByteType bytes[4];
    const auto size = static_cast<int>(EGifGCBToExtension(&control, bytes));
    done(EGifPutExtension(file_, GRAPHICS_EXT_FUNC_CODE, size, bytes));
  }

  void putFrame(const QImage& frame) {
    done(EGifPutImageDesc(file_, 0, 0, frame.width(), frame.height(), false, nullptr));
    for (int y = 0; y < frame.height(); ++y) {
      // The library masks the pixels of the line that it is given.
      std::vector<GifPixelType> line(frame.constScanLine(y), frame.constScanLine(y) + frame.width());
      done(EGifPutLine(file_, line.data(), frame.width()));
    }
  }

private:
  static void done(int result) { require(result == GIF_OK, "a GIF file is written as it was begun"); }

  GifFileType* file_;
};

}  // namespace

QByteArray gifFile(const std::vector<QImage>& frames, const GifOptions& options) {
  require(!frames.empty(), "a GIF file needs a frame");
  QByteArray out;
  {
    GifFile file(out);
    file.putScreen(frames.front());
    if (frames.size() > 1) file.putEndlessLoop();
    for (const QImage& frame : frames) {
      require(frame.format() == QImage::Format_Indexed8 && frame.size() == frames.front().size(),
              "the frames of a GIF file are indexed and of one size");
      file.putControl(options);
      file.putFrame(frame);
    }
  }
  return out;
}

}  // namespace veneerer::looks
