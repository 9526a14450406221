// What is seen of a Skin at a glance, without taking it in hand.
#pragma once

#include <QDateTime>
#include <QImage>
#include <QString>

#include "platform/platform.h"

namespace veneerer {

struct SkinGlance {
  QString name;
  QString fault;        ///< why it can't be loaded; empty for one that can
  QImage picture;       ///< of its main screen, reduced; null for one that can't be loaded
  QString resolution;   ///< "800 x 600"; empty where the Skin tells none
  QDateTime lastSaved;  ///< of its newest record or cover file; invalid without one
};

/// Loads that Skin into elements of its own, on any thread; of the platform only the screen and the folder
/// are looked at. Nothing is asked, told or written. No side of the picture is above that, pixels.
SkinGlance glanceAt(const Platform& platform, const QString& skinName, int mostSide);

/// How many errors and warnings a check of that Skin gives, on any thread.
int countFindings(const Platform& platform, const QString& skinName);

}  // namespace veneerer
