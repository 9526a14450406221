// The rules by which all colours of a Skin follow from three of them.
#pragma once

#include <QStringList>
#include <span>

#include "design/theme.h"
#include "looks/look.h"
#include "problems/contrast.h"

namespace veneerer::looks {

/// What the pictures are drawn with.
struct Palette {
  QColor backdrop;     ///< upper end of the ground
  QColor backdropEnd;  ///< lower end of it
  QColor header;       ///< the upper edge of a screen
  QColor bar;          ///< menu and player
  QColor barEnd;
  QColor card;  ///< panels that have pictures of their own
  QColor cardEnd;
  QColor accent;     ///< lines and light
  QColor accentEnd;  ///< its darker side
  QColor motif;      ///< the pattern on the ground
  QColor barMotif;   ///< the pattern on the bars
  QColor line;       ///< fine edges
  QColor icon;       ///< icons on the menu's buttons
};

struct Scheme {
  design::Theme theme;
  Palette palette;
  QStringList notes;  ///< which of the given colours had to be moved, a sentence each
};

/// The share of the motif that a text may meet at most.
inline constexpr double kMotifShare = 0.25;

/// Every ink of it has that contrast to all that may lie beneath. Where the colours given don't allow it, the
/// text is moved as far as needed, and the ground where no text at all could stand on it.
Scheme schemeOf(const Look& look, const Colours& colours);

/// The contrast of two colours, 1 to 21.
double contrastOf(const QColor& one, const QColor& other);

/// The ink, or the nearest one on the way to white or to black that has that contrast to all grounds; the
/// better of white and black where none has.
QColor legible(const QColor& ink, std::span<const QColor> grounds, double least = kLeastContrast);

}  // namespace veneerer::looks
