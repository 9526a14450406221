#include "recolouring/turnedgif.h"

namespace veneerer {

namespace {

// Of the format GIF89a, whose sizes hold for GIF87a too. Sizes in bytes.
constexpr qsizetype kSignature = 6;
constexpr qsizetype kScreenSize = 7;
constexpr qsizetype kScreenFlags = 4;
constexpr qsizetype kFrameSize = 9;  // behind its introducer
constexpr qsizetype kFrameFlags = 8;
constexpr qsizetype kColour = 3;
constexpr int kExtension = 0x21;
constexpr int kFrame = 0x2C;
constexpr int kHasTable = 0x80;
constexpr int kTableBits = 0x07;

/// Walks over the blocks of a file and turns the tables on the way.
class GifWalk {
public:
  GifWalk(QByteArray& bytes, PixelTurner& turner) : bytes_(bytes), turner_(turner) {}

  /// Whether a colour has changed.
  bool run() {
    at_ = kSignature + kScreenSize;
    table(byteAt(kSignature + kScreenFlags));
    while (block()) {
    }
    return isOther_;
  }

private:
  int byteAt(qsizetype at) const { return at < bytes_.size() ? static_cast<uchar>(bytes_[at]) : 0; }

  void table(int flags) {
    if ((flags & kHasTable) == 0) return;
    const qsizetype colours = qsizetype{2} << (flags & kTableBits);
    isOther_ |= turner_.turnEntries(bytes_, at_, colours, kColour, PixelTurner::Order::RedFirst);
    at_ += colours * kColour;
  }

  /// False at the trailer, and at what is no block.
  bool block() {
    const int introducer = byteAt(at_++);
    if (introducer == kExtension) {
      ++at_;  // its label
    } else if (introducer == kFrame) {
      const int flags = byteAt(at_ + kFrameFlags);
      at_ += kFrameSize;
      table(flags);
      ++at_;  // the size of its codes
    } else {
      return false;
    }
    skipPieces();
    return at_ < bytes_.size();
  }

  void skipPieces() {
    while (const int piece = byteAt(at_++)) at_ += piece;
  }

  QByteArray& bytes_;
  PixelTurner& turner_;
  qsizetype at_ = 0;
  bool isOther_ = false;
};

}  // namespace

std::optional<QByteArray> turnedGif(const QByteArray& gif, PixelTurner& turner) {
  QByteArray made = gif;
  return GifWalk(made, turner).run() ? std::optional(made) : std::nullopt;
}

}  // namespace veneerer
