// The file dialog for pictures.
#pragma once

#include <QWidget>

#include "platform/skinfolder.h"

namespace veneerer {

/// Where a picture for a Skin is looked for first: the folder used last when it lies within that Skin, else
/// the Skin's images, else the Skin's folder, else the folder of all Skins.
QString pictureFolder(const SkinFolder& skin, const QString& lastFolder);

/// The full name of an existing file, chosen with a preview from that folder on by a filter in the toolkit's
/// form; empty on cancel.
QString runPictureDialog(const QString& folder, const QString& filter, QWidget* parent);

}  // namespace veneerer
