// A look as data: what makes one kind of Skin differ from another, whatever its size and colours.
#pragma once

#include <QColor>
#include <QSize>
#include <cstdint>
#include <initializer_list>

#include "design/covers.h"

namespace veneerer::looks {

/// Where menu and player stand on a landscape screen. The rules of plans.h make of it what a small, a wide
/// and an upright screen need.
enum class Arrangement : std::uint8_t {
  MenuLeft,   ///< a column at the left, the logo over it, the player on top
  MenuRight,  ///< a column at the right, the logo over it, the player at the foot
  MenuFoot,   ///< rows at the foot, logo and player on top
  MenuTop     ///< rows below the logo and the player
};

/// The pattern that runs through all pictures of a Skin.
enum class Motif : std::uint8_t {
  Rings,    ///< grooves of a record
  Slats,    ///< brushed metal with rays across
  Bubbles,  ///< large soft discs
  Bands,    ///< a few broad diagonal bands
  Grid,     ///< lines of light that run to a horizon
  Grain,    ///< planks of wood
  Plain,    ///< nothing but edges
  Waves     ///< curves one above the other
};

/// Where an icon stands on the face of a menu button.
enum class IconPlace : std::uint8_t {
  Above,  ///< over the caption
  Left    ///< beside it, on buttons that are wide enough
};

/// Which of the Skin's colours a thing has.
enum class Tone : std::uint8_t {
  Ground,  ///< the ground, a little deeper
  Raised,  ///< the ground, lifted towards the texts' side
  Accent,  ///< the accent
  Second,  ///< the colour across from the accent
  Paper    ///< the texts' colour, for dark letters on a light thing or the other way round
};

/// A button of one role; its colours follow from the tone.
struct ButtonForm {
  Tone tone = Tone::Raised;
  int shape = 0;
  int style = 0;
  int mode = 0;   ///< of the gradient
  int depth = 0;  ///< how much darker the gradient's second colour is, percent
};

struct ButtonForms {
  ButtonForm menu, transport, plain, primary, tab, key, wideKey;
};

/// Rows of the style lists that the Skin chooses, where its size has room for them.
struct Choices {
  int jumpToLetter = 0;
  int navigation = 0;
  int genre = 0;
  int player = 0;
};

struct NamedCovers {
  design::CoverLayout layout;
  bool frames = false;      ///< a frame round each cover
  bool seeThrough = false;  ///< captions without a ground
};

/// What everything else is mixed from.
struct Colours {
  QColor accent;
  QColor ground;
  QColor text;
};

struct Look {
  const char* name;
  const char* what;     ///< one sentence for who chooses, in English
  const char* shipped;  ///< the Skin that comes with the program, null for none
  Arrangement arrangement;
  Motif motif;
  IconPlace menuIcons;
  ButtonForms buttons;
  Tone bars;    ///< menu, player, status and the upper edge of the screens
  Tone fields;  ///< where a text is typed
  int lines;    ///< how strongly edges are drawn, percent of the accent
  Choices choices;
  std::initializer_list<NamedCovers> covers;
  const char* font;
  Colours colours;
  QSize size;  ///< pixels
};

}  // namespace veneerer::looks
