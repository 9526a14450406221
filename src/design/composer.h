// The hand that puts elements into place: each call gives an element its container, place, text and look.
#pragma once

#include <QString>
#include <algorithm>
#include <array>
#include <span>

#include "design/layout.h"
#include "design/plan.h"
#include "design/theme.h"
#include "forms/state.h"

namespace veneerer::design {

struct TextLook {
  Colour ink = 0;
  int points = 10;  ///< before the plan's text scale
  bool bold = false;
  Alignment align = Alignment::Left;
};

/// Captions of an array's members, from index 0 on.
using Captions = std::span<const char* const>;

/// A length along a screen's edge that keeps its parts off the edge, before the plan's scale.
inline constexpr int kMargin = 10;
inline constexpr int kGap = 6;
/// The upper edge of a screen, which holds its title.
inline constexpr int kHeaderHeight = 48;
/// A button that a finger hits.
inline constexpr int kTouch = 44;
/// The least side of such a button, pixels of any plan.
inline constexpr int kFinger = 32;

class Composer {
public:
  Composer(State& state, const Plan& places, const Theme& looks)
      : form(state.form1), plan(places), theme(looks) {}

  Form1& form;
  const Plan& plan;
  const Theme& theme;

  /// A length of the 800 by 600 design in the plan's own pixels.
  int px(int length) const;
  /// A text size in the plan's own whole points.
  int points(const TextLook& look) const;
  /// The height that a line of that look needs, pixels.
  int lineOf(const TextLook& look) const { return lineHeight(points(look), plan.lineFactor); }
  /// A length of a button that a finger still hits, pixels.
  int finger(int length) const { return std::max(px(length), kFinger); }

  /// A panel in a flat colour.
  void panel(PictureBox& box, Element& holder, const Box& at, Colour back);
  /// A panel whose colour no record holds: it shows what lies beneath.
  void clearPanel(PictureBox& box, Element& holder, const Box& at);
  /// The place of a picture that the jukebox shows: a veil over what lies beneath.
  void artwork(PictureBox& box, Element& holder, const Box& at);
  /// An image without a placeholder.
  void image(Element& image, Element& holder, const Box& at);

  /// A transparent text that fills the box from its top.
  void text(Label& label, Element& holder, const Box& at, const QString& caption, const TextLook& look);
  /// One transparent line in the middle of the box's height.
  void line(Label& label, Element& holder, const Box& at, const QString& caption, const TextLook& look);
  /// A line on a ground of its own, as high as the box.
  void field(Label& label, Element& holder, const Box& at, const QString& caption, const TextLook& look);

  /// A button. Its text size, in points, comes with the program and not with a Skin, so the plan's text
  /// scale has no say.
  void button(Button& button, Element& holder, const Box& at, const QString& caption, const ButtonLook& look,
              int points = kButtonPoints);

  /// Members first to first + captions.size() - 1 in the cells of a grid, in order.
  void buttons(Array<Button>& family, int first, Element& holder, const Grid& grid, Captions captions,
               const ButtonLook& look, int points = kButtonPoints);

  static constexpr int kButtonPoints = 11;
  static constexpr int kKeyPoints = 14;
};

/// The inside of a screen with its margins taken off, and the header cut from it.
struct ScreenParts {
  Box header;
  Box body;
};
ScreenParts partsOf(const Composer& composer, const Element& screen);

/// The part of a panel that its contents take: as much of the middle as keeps keys and tiles in proportion.
Box dialogOf(const Element& screen);

/// Cuts a square for a picture off the left side, at most half as wide as the row.
Box cutPicture(Box& row, int gap);

}  // namespace veneerer::design
