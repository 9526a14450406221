#include "properties/grab.h"

#include <QBuffer>
#include <QDir>
#include <QPainter>
#include <algorithm>

#include "components/colours.h"
#include "platform/skinfolder.h"
#include "records/recorderror.h"
#include "records/recordwriter.h"

namespace veneerer {

namespace {

// Wider than any screen; a stranger's panel may claim any size.
constexpr float kMostPixels = 16384;

int toPixels(float twips, double twipsPerPixel) {
  return static_cast<int>(std::clamp(float(twips / twipsPerPixel), -kMostPixels, kMostPixels));
}

/// The part of the canvas window's own picture that lies under the panel.
QImage pieceUnder(const State& state, const PictureBox& panel, const Screen& screen) {
  const QPoint corner(toPixels(panel.left(), screen.twipsPerPixelX()),
                      toPixels(panel.top(), screen.twipsPerPixelY()));
  const QSize size(toPixels(panel.width(), screen.twipsPerPixelX()),
                   toPixels(panel.height(), screen.twipsPerPixelY()));
  QImage piece(size, QImage::Format_RGB32);
  if (piece.isNull()) return piece;
  piece.fill(toQColor(panel.backColor()));
  QPainter painter(&piece);
  painter.drawImage(QPoint(0, 0), state.form1.picture().image(), QRect(corner, size));
  return piece;
}

QByteArray asBitmap(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "BMP");
  return bytes;
}

struct Piece {
  PictureBox& panel;
  const char* file;  ///< in the images folder
};

void writePiece(State& state, const Piece& piece, const SkinFolder& images, const Screen& screen) {
  const QByteArray bytes = asBitmap(pieceUnder(state, piece.panel, screen));
  const QString name = QString::fromLatin1(piece.file);
  if (bytes.isEmpty()) throw RecordError(name, 0, {}, {}, QStringLiteral("the panel has no size"));
  writeRecordFile(images, name, bytes);
  piece.panel.setPicture(state.pictures.load(images.file(name)));
}

}  // namespace

void grabPlayerAndMenu(State& state, const Platform& platform) {
  const QString title = QStringLiteral("Texture Viewer");
  if (state.form1.picture().image().isNull()) {
    platform.dialogs.inform(title, QStringLiteral("The album view has no picture to grab from."));
    return;
  }
  const SkinFolder skin(platform.folder, state.form4.Combo3->text());
  const SkinFolder images(skin.path() + QStringLiteral("/images"));
  PictureBox& menu = state.form1.Picture2[0];
  PictureBox& player = state.form1.Picture2[1];
  StoredValue& name = state.names.ImageName[13];
  try {
    if (skin.exists()) QDir().mkpath(images.path());
    if (!skin.contains(images.path()))
      throw RecordError(QStringLiteral("images"), 0, {}, {},
                        QStringLiteral("the folder lies outside the Skin's folder"));
    menu.setBorderStyle(0);
    writePiece(state, {menu, "Menu.bmp"}, images, platform.screen);
    writePiece(state, {player, "Player.bmp"}, images, platform.screen);
    // The full path stands in the table and in skin.ini: every other entry is relative.
    name = images.file(QStringLiteral("Player.bmp"));
    // The panel of the player ends with a border, that of the menu without.
    player.setBorderStyle(1);
  } catch (const RecordError& error) {
    platform.dialogs.inform(title, error.message());
  }
}

}  // namespace veneerer
