// What makes one Skin differ from another: its size, its places, its colours, its pattern and its choices.
#pragma once

#include <QColor>
#include <vector>

#include "design/covers.h"
#include "design/plan.h"
#include "design/theme.h"

namespace veneerer::looks {

/// The pattern that runs through all pictures of a Skin.
enum class Motif {
  Rings,   ///< grooves of a record
  Slats,   ///< brushed metal with rays across
  Bubbles  ///< large soft discs
};

struct Palette {
  QColor backdrop;     ///< upper end of the ground
  QColor backdropEnd;  ///< lower end of it
  QColor header;       ///< the upper edge of a screen
  QColor bar;          ///< menu and player
  QColor barEnd;
  QColor accent;  ///< lines, lettering, light
  QColor accentEnd;
  QColor line;  ///< fine edges
  QColor icon;  ///< icons on buttons
};

/// Where an icon stands on the face of a menu button.
enum class IconPlace {
  Above,    ///< over the caption
  Left,     ///< beside the caption
  Lettered  ///< over lettering that is a part of the picture, for buttons too large for their captions
};

/// Rows of the style lists that the Skin chooses.
struct Choices {
  int jumpToLetter = 0;
  int navigation = 0;
  int genre = 0;
  int player = 0;
};

struct NamedCovers {
  const char* file;
  design::CoverLayout layout;
  bool frames;      ///< a frame round each cover
  bool seeThrough;  ///< captions without a ground
};

struct Look {
  const char* name;
  design::Plan plan;
  design::Theme theme;
  Palette palette;
  Motif motif;
  IconPlace menuIcons;
  Choices choices;
  std::vector<NamedCovers> covers;
};

Look blackAndBlueLook();
Look copperLoungeLook();
Look daylightWideLook();

}  // namespace veneerer::looks
