// What a picture file tells ahead of decoding. Files come from strangers: the head alone says which decoder
// gets the bytes, and what only costs memory or time in it is told or taken away before.
#pragma once

#include <QByteArray>
#include <QSize>

namespace veneerer {

enum class PictureFormat { None, Bitmap, Gif, Jpeg, Png, Icon };

/// How many first bytes formatOf needs.
inline constexpr int kPictureHead = 8;

/// The format of a file that begins like this; a cursor counts as an icon.
PictureFormat formatOf(const QByteArray& head);

/// The format's name in terms of the decoders; null for None.
const char* decoderOf(PictureFormat format);

/// The size that the head of a GIF file tells, pixels; invalid where the file ends ahead of it.
QSize gifSize(const QByteArray& gif);

/// Takes away all chunks of a PNG file but those that its pixels are made of: texts and colour profiles can
/// be a thousand times as large as they are in the file. Anything odd stays for the decoder to refuse.
void dropPngExtras(QByteArray& png);

/// The PNG file that is the first picture of an icon file; empty when it holds a bitmap.
QByteArray pngOfIcon(const QByteArray& icon);

}  // namespace veneerer
