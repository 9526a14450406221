// Pictures that cost far more than their files are large, made of a few bytes.
#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QtEndian>

namespace veneerer::test {

template <class Number>
QByteArray bigEndian(Number number) {
  QByteArray bytes(sizeof(Number), '\0');
  qToBigEndian(number, bytes.data());
  return bytes;
}

inline quint32 checkSum(const QByteArray& bytes) {
  quint32 sum = ~0U;
  for (const char c : bytes) {
    sum ^= static_cast<unsigned char>(c);
    for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1) ^ (sum & 1 ? 0xEDB88320U : 0U);
  }
  return ~sum;
}

inline QByteArray pngChunk(const char* type, const QByteArray& data) {
  const QByteArray body = type + data;
  return bigEndian(static_cast<quint32>(data.size())) + body + bigEndian(checkSum(body));
}

/// What an inflated stream of that many bytes of one kind is packed to.
inline QByteArray packed(qsizetype bytes, char byte) {
  return qCompress(QByteArray(bytes, byte), 9).mid(4);
}

/// A PNG file of one grey, one bit a pixel, with further chunks ahead of its pixels.
inline QByteArray flatPng(QSize size, const QByteArray& extras = {}) {
  const QByteArray head =
      bigEndian(qint32{size.width()}) + bigEndian(qint32{size.height()}) + QByteArray::fromHex("0100000000");
  const qsizetype row = 1 + (size.width() + 7) / 8;
  return QByteArray::fromHex("89504e470d0a1a0a") + pngChunk("IHDR", head) + extras +
         pngChunk("IDAT", packed(row * size.height(), '\0')) + pngChunk("IEND", {});
}

inline QByteArray jpegSegment(int code, const QByteArray& data) {
  return QByteArray("\xFF") + static_cast<char>(code) + bigEndian(static_cast<quint16>(data.size() + 2)) +
         data;
}

/// A progressive grey JPEG file of 8 by 8 pixels that goes over its one block as often as told.
inline QByteArray scannedJpeg(int scans) {
  const QByteArray one = QByteArray("\1") + QByteArray(15, '\0') + '\0';  // one code, "0", for the symbol 0
  QByteArray jpeg = QByteArray::fromHex("ffd8") + jpegSegment(0xDB, '\0' + QByteArray(64, '\1')) +
                    jpegSegment(0xC2, QByteArray::fromHex("080008000801011100")) +
                    jpegSegment(0xC4, '\0' + one) + jpegSegment(0xC4, '\x10' + one) +
                    jpegSegment(0xDA, QByteArray::fromHex("010100000000")) + '\x7F';
  for (int scan = 1; scan < scans; ++scan)
    jpeg += jpegSegment(0xDA, QByteArray::fromHex("010100013f00")) + '\x7F';
  return jpeg + QByteArray::fromHex("ffd9");
}

/// Two frames of one pixel in the upper left corner, red and blue, 20 ms each, repeated for ever.
inline QByteArray blinkingGif(quint16 width = 1, quint16 height = 1) {
  const QByteArray control("\x21\xF9\x04\x00\x02\x00\x00\x00", 8);
  const QByteArray descriptor("\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00", 10);
  QByteArray size(4, '\0');
  qToLittleEndian(width, size.data());
  qToLittleEndian(height, size.data() + 2);
  return "GIF89a" + size + QByteArray("\x80\x00\x00\xFF\x00\x00\x00\x00\xFF", 9) +
         QByteArray("\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00", 19) + control + descriptor +
         QByteArray("\x02\x02\x44\x01\x00", 5) + control + descriptor +
         QByteArray("\x02\x02\x4C\x01\x00", 5) + ';';
}

}  // namespace veneerer::test
