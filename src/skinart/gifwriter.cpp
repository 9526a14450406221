#include "skinart/gifwriter.h"

#include <QHash>

#include "elements/require.h"

namespace veneerer::skinart {

namespace {

constexpr int kCodeLimit = 4096;
constexpr int kBlockSize = 255;

void appendShort(QByteArray& out, int value) {
  out.append(static_cast<char>(value & 0xff));
  out.append(static_cast<char>(value >> 8 & 0xff));
}

// Bits of the colour table: its size is a power of two, the codes of an image begin one bit wider.
int tableBits(const QImage& frame) {
  int bits = 1;
  while (1 << bits < frame.colorCount()) ++bits;
  return bits;
}

// Packs codes of growing width, low bits first, into blocks of at most 255 bytes.
class CodeStream {
public:
  explicit CodeStream(QByteArray& out) : out_(out) {}

  void put(int code, int width) {
    bits_ |= static_cast<quint32>(code) << count_;
    count_ += width;
    for (; count_ >= 8; count_ -= 8, bits_ >>= 8) putByte(static_cast<char>(bits_ & 0xff));
  }

  void finish() {
    if (count_ > 0) putByte(static_cast<char>(bits_ & 0xff));
    flush();
    out_.append('\0');
  }

private:
  void putByte(char byte) {
    block_.append(byte);
    if (block_.size() == kBlockSize) flush();
  }

  void flush() {
    if (block_.isEmpty()) return;
    out_.append(static_cast<char>(block_.size()));
    out_.append(block_);
    block_.clear();
  }

  QByteArray& out_;
  QByteArray block_;
  quint32 bits_ = 0;
  int count_ = 0;
};

// LZW: strings of pixels that were seen before go out as one code.
class Compressor {
public:
  Compressor(QByteArray& out, int bits) : stream_(out), clear_(1 << bits), bits_(bits) { restart(); }

  void add(int pixel) {
    if (current_ < 0) {
      current_ = pixel;
      return;
    }
    const int key = current_ << 8 | pixel;
    const auto known = strings_.constFind(key);
    if (known != strings_.constEnd()) {
      current_ = *known;
      return;
    }
    stream_.put(current_, width_);
    learn(key);
    current_ = pixel;
  }

  void finish() {
    if (current_ >= 0) stream_.put(current_, width_);
    // The reader learns from the last pixel too, so the end may come in a wider code.
    if (next_ >= 1 << width_ && width_ < 12) ++width_;
    stream_.put(clear_ + 1, width_);
    stream_.finish();
  }

private:
  void restart() {
    width_ = bits_ + 1;
    next_ = clear_ + 2;
    strings_.clear();
    stream_.put(clear_, width_);
  }

  void learn(int key) {
    if (next_ == kCodeLimit) {
      stream_.put(clear_, width_);
      width_ = bits_ + 1;
      next_ = clear_ + 2;
      strings_.clear();
      return;
    }
    // The reader is one string behind, so the codes widen when the string just learnt needs it.
    if (next_ == 1 << width_) ++width_;
    strings_.insert(key, next_++);
  }

  CodeStream stream_;
  QHash<int, int> strings_;
  int clear_;
  int bits_;
  int width_ = 0;
  int next_ = 0;
  int current_ = -1;
};

void appendHeader(QByteArray& out, const QImage& frame) {
  const int bits = tableBits(frame);
  out.append("GIF89a");
  appendShort(out, frame.width());
  appendShort(out, frame.height());
  out.append(static_cast<char>(0x80 | 0x70 | (bits - 1)));
  out.append('\0');
  out.append('\0');
  for (int i = 0; i < 1 << bits; ++i) {
    const QRgb colour = i < frame.colorCount() ? frame.color(i) : qRgb(0, 0, 0);
    out.append(static_cast<char>(qRed(colour)));
    out.append(static_cast<char>(qGreen(colour)));
    out.append(static_cast<char>(qBlue(colour)));
  }
}

void appendLoop(QByteArray& out) {
  out.append("\x21\xff\x0bNETSCAPE2.0\x03\x01", 16);
  appendShort(out, 0);
  out.append('\0');
}

void appendControl(QByteArray& out, const GifOptions& options) {
  constexpr int kRestoreBackground = 2 << 2;
  const bool isSeeThrough = options.transparent >= 0;
  out.append("\x21\xf9\x04", 3);
  out.append(static_cast<char>(isSeeThrough ? kRestoreBackground | 1 : 0));
  appendShort(out, options.hundredths);
  out.append(static_cast<char>(isSeeThrough ? options.transparent : 0));
  out.append('\0');
}

void appendFrame(QByteArray& out, const QImage& frame) {
  // No image may begin with codes of less than two bits.
  const int bits = std::max(2, tableBits(frame));
  out.append('\x2c');
  appendShort(out, 0);
  appendShort(out, 0);
  appendShort(out, frame.width());
  appendShort(out, frame.height());
  out.append('\0');
  out.append(static_cast<char>(bits));
  Compressor compressor(out, bits);
  for (int y = 0; y < frame.height(); ++y) {
    const uchar* line = frame.constScanLine(y);
    for (int x = 0; x < frame.width(); ++x) compressor.add(line[x]);
  }
  compressor.finish();
}

}  // namespace

QByteArray gifFile(const std::vector<QImage>& frames, const GifOptions& options) {
  require(!frames.empty(), "a GIF file needs a frame");
  QByteArray out;
  appendHeader(out, frames.front());
  if (frames.size() > 1) appendLoop(out);
  for (const QImage& frame : frames) {
    require(frame.format() == QImage::Format_Indexed8 && frame.size() == frames.front().size(),
            "the frames of a GIF file are indexed and of one size");
    appendControl(out, options);
    appendFrame(out, frame);
  }
  out.append('\x3b');
  return out;
}

}  // namespace veneerer::skinart
