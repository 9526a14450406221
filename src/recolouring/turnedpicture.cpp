#include "recolouring/turnedpicture.h"

#include <QFileInfo>
#include <algorithm>

#include "files/plainfile.h"
#include "images/picturedecoding.h"
#include "images/pictureformat.h"
#include "recolouring/pixelturner.h"
#include "recolouring/texts.h"
#include "recolouring/turnedbitmap.h"
#include "recolouring/turnedgif.h"
#include "recolouring/turnedjpeg.h"
#include "recolouring/turnedpng.h"

namespace veneerer {

namespace {

constexpr const char* kEndings[] = {"bmp", "gif", "jpg", "jpeg", "png", "ico"};

bool isNamedAsPicture(const QString& path) {
  const QString ending = QFileInfo(path).suffix().toLower();
  return std::ranges::any_of(kEndings, [&](const char* each) { return ending == QLatin1String(each); });
}

std::optional<QByteArray> turnedBytes(PictureFormat format, const QByteArray& bytes, QImage&& image,
                                      PixelTurner& turner, const Step& step) {
  switch (format) {
    case PictureFormat::Bitmap:
      return turnedBitmap(bytes, turner, step);
    case PictureFormat::Gif:
      return turnedGif(bytes, turner);
    case PictureFormat::Png:
      return turnedPng(bytes, std::move(image), turner, step);
    default:
      return turnedJpeg(bytes, std::move(image), turner, step);
  }
}

}  // namespace

TurnedPicture turnedPicture(const QString& path, const ColourTurn& turn, const Step& step) {
  const PictureFormat format = formatOf(headOfFile(path, kPictureHead));
  if (format == PictureFormat::None)
    return {{},
            isNamedAsPicture(path) ? RecolouringTexts::tr("it is no picture that can be read") : QString()};
  if (format == PictureFormat::Icon) return {{}, RecolouringTexts::tr("icons aren't turned")};
  const FileContent content = readPlainFile(path, kMostPictureBytes);
  if (!content.isRead()) return {{}, content.reason};
  QImage image = decodeExactly(content.bytes);
  if (image.isNull()) return {{}, RecolouringTexts::tr("it can't be decoded")};
  step();
  PixelTurner turner(turn);
  std::optional<QByteArray> made = turnedBytes(format, content.bytes, std::move(image), turner, step);
  if (made && made->isEmpty())
    return {{}, RecolouringTexts::tr("its format can't hold the picture any more")};
  return {std::move(made), {}};
}

}  // namespace veneerer
