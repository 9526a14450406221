// The segments of a JPEG file, one after the other.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace veneerer {

/// Walks from marker to marker of a file, damaged or not. The bytes must stay.
class JpegSegments {
public:
  explicit JpegSegments(const QByteArray& jpeg) : bytes_(jpeg) {}

  /// Goes to the next segment; false at the end of the picture or the file.
  bool next();
  /// The second byte of its marker.
  int code() const;
  /// What stands in it behind its length, as far as the file goes.
  QByteArrayView data() const;

private:
  int byteAt(qsizetype at) const { return static_cast<unsigned char>(bytes_[at]); }
  qsizetype nextMarker(qsizetype at) const;
  int length() const;

  QByteArrayView bytes_;
  qsizetype at_ = 0;  ///< of the current marker's code
};

}  // namespace veneerer
