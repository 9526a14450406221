#include "panels/grab.h"

#include <QPainter>
#include <algorithm>

#include "elements/colour.h"
#include "forms/currentskin.h"
#include "images/pictureencoding.h"
#include "panels/texts.h"
#include "platform/skinfolder.h"
#include "records/writefiles.h"

namespace veneerer {

namespace {

constexpr QLatin1String kImages("images/");

// Wider than any screen; a stranger's panel may claim any size.
constexpr double kMostPixels = 8192;

int toPixels(float twips, double twipsPerPixel) {
  return static_cast<int>(std::clamp(twips / twipsPerPixel, -2 * kMostPixels, 2 * kMostPixels));
}

QRect pixelsUnder(const PictureBox& panel, const Screen& screen) {
  const QPoint corner(toPixels(panel.left(), screen.twipsPerPixelX()),
                      toPixels(panel.top(), screen.twipsPerPixelY()));
  const QSize size(toPixels(panel.width(), screen.twipsPerPixelX()),
                   toPixels(panel.height(), screen.twipsPerPixelY()));
  return QRect(corner, size);
}

/// A part of the backdrop as a file, empty for a size that a picture can't have.
QByteArray encodePart(const QImage& backdrop, const QRect& part, const QColor& beyond) {
  if (part.isEmpty() || part.width() > kMostPixels || part.height() > kMostPixels) return {};
  QImage piece(part.size(), QImage::Format_RGB32);
  piece.fill(beyond);
  QPainter(&piece).drawImage(QPoint(0, 0), backdrop, part);
  return encodePicture(piece, "BMP");
}

/// A panel's piece of the backdrop, ready to be written.
struct Piece {
  PictureBox& panel;
  QString name;  ///< in the Skin's folder; an existing file keeps its spelling
  QByteArray bytes;
};

Piece composePiece(const QImage& backdrop, PictureBox& panel, const char* name, const SkinFolder& skin,
                   const Platform& platform) {
  const QString fixed = QString::fromLatin1(name);
  const QString existing = skin.resolve(QStringLiteral("\\images\\") + fixed);
  const QRect part = pixelsUnder(panel, platform.screen);
  const QColor beyond = panel.backColor().toQColor();
  QByteArray bytes;
  platform.runAside([&] { bytes = encodePart(backdrop, part, beyond); });
  if (bytes.isEmpty())
    throw RecordError(fixed, 0, panel.key(), {},
                      PanelTexts::tr("the panel has no size that a picture can have"));
  return {panel, kImages + (existing.isEmpty() ? fixed : bareFileName(existing)), bytes};
}

void makeImagesFolder(const SkinFolder& skin, Disk& disk) {
  if (!skin.exists()) return;
  const QString reason = disk.makeFolder(skin.file(kImages));
  if (!reason.isEmpty()) throw WriteRefused({kImages, reason});
}

void show(const Piece& piece, State& state, const SkinFolder& skin) {
  piece.panel.setPicture(state.pictures.load(skin.file(piece.name)));
}

void grab(State& state, const QImage& backdrop, const Platform& platform) {
  const SkinFolder skin = currentSkinFolder(state, platform.folder);
  PictureBox& menu = state.form1.Picture2[0];
  PictureBox& player = state.form1.Picture2[1];
  const Piece menuPiece = composePiece(backdrop, menu, "Menu.bmp", skin, platform);
  const Piece playerPiece = composePiece(backdrop, player, "Player.bmp", skin, platform);
  makeImagesFolder(skin, platform.disk);
  writeFiles(platform.disk, skin.path(),
             {{menuPiece.name, menuPiece.bytes}, {playerPiece.name, playerPiece.bytes}});
  menu.setBorderStyle(0);
  show(menuPiece, state, skin);
  show(playerPiece, state, skin);
  // The full path stands in the table and in skin.ini: every other entry is relative.
  state.names.ImageName[13].setValue(skin.file(playerPiece.name));
  // The panel of the player ends with a border, that of the menu without.
  player.setBorderStyle(1);
}

}  // namespace

void grabPlayerAndMenu(State& state, const Platform& platform) {
  const QString title = QStringLiteral("Texture Viewer");
  const QImage backdrop = decodeAside(platform, state.form1.picture());
  if (backdrop.isNull()) {
    platform.dialogs.inform(title, PanelTexts::tr("The album view has no picture to grab from."));
    return;
  }
  try {
    grab(state, backdrop, platform);
  } catch (const RecordError& error) {
    platform.dialogs.inform(title, error.message());
  }
}

}  // namespace veneerer
