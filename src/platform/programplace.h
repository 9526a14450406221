// Where the program's Skins live.
#pragma once

#include <QString>
#include <QStringList>

#include "platform/platform.h"

namespace veneerer {

/// Where the folder of the Skins may be, in the order in which the places count. An empty one isn't looked
/// at.
struct ProgramPlaces {
  QString given;   ///< the program folder that the command line names
  QString skin;    ///< the folder of the Skin that the command line names
  QString beside;  ///< where the program itself stands
  QString user;    ///< the user's own data folder
  /// Where the Skins that come with the program may be; the first one that has any is copied for the user.
  QStringList shared = {};
};

struct FoundPlace {
  ProgramFolder folder;
  QString fault = {};  ///< why the user's folder couldn't be made, one sentence; empty when all is well
};

/// The folder that the program works in: the given one; around a Skin that is named, its root; the one beside
/// the program where it holds Skins; the user's. Into the user's the shared "images" and "Skins" are copied
/// as far as they aren't there, each whole or not at all.
FoundPlace findPlace(const ProgramPlaces& places, Disk& disk);

/// The Skin's name by the path of its folder.
QString skinName(const QString& path);

/// The Skin's parent is the root of Skins, and the root's parent holds the images beside the program.
ProgramFolder programFolder(const QString& skinPath);

}  // namespace veneerer
