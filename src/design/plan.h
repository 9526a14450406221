// Where the large parts of a composition stand. Boxes are in pixels, relative to the canvas window unless
// told otherwise.
#pragma once

#include <QString>

#include "design/layout.h"

namespace veneerer::design {

struct Plan {
  int width = 800;  ///< of the skin, without the window's frame
  int height = 600;
  double scale = 1;      ///< multiplies the lengths that don't follow from a container
  double textScale = 1;  ///< multiplies the sizes of the labels' texts
  int leastPoints = 1;   ///< no label's text is smaller
  QString font = QStringLiteral("Arial");
  double lineFactor = kLineFactor;  ///< the height of the font's lines, in sizes

  Box menu;
  int menuColumns = 1;
  Box logo;
  Box name;             ///< the jukebox's name
  int namePoints = 12;  ///< its size before the text scale
  Box player;
  Box status;   ///< the bar of credits, messages and the navigation of the main screen
  Box stage;    ///< the panel that the main screen shows where no other screen stands
  Box screen;   ///< each of the full screens
  Box dialog;   ///< each of the panels
  Box confirm;  ///< the confirmation
  Box pin;
  Box popup;
  int popupColumns = 2;
  Box genreBar;
  bool genreBarUpright = false;

  int trackColumns = 1;        ///< of the track listing; in two, each track has two lines
  bool albumCounts = true;     ///< room for the number of albums on each genre
  bool sliderUpright = false;  ///< keeps a column of the album view free for the vertical slider
};

/// The places of the built-in design, for a screen of 800 by 600 pixels.
Plan builtInPlan();

}  // namespace veneerer::design
