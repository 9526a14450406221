// What a screen of one Skin has to get to look as it does in another one.
#pragma once

#include <vector>

#include "forms/state.h"
#include "platform/skinfolder.h"

namespace veneerer {

enum class LookPart : std::uint8_t { Whole, ColoursAndFonts };

struct TakenValue {
  Element* element;
  Property property;
  Value value;
};

/// An image reference with all that shows its file.
struct TakenPicture {
  ImageSlot* name;
  std::vector<Element*> shownBy;
  QString path;  ///< of the picture in the other Skin; empty where it has none
};

/// Only what isn't the same already.
struct TakenLook {
  std::vector<TakenValue> values;      ///< in the order in which they are to be set
  std::vector<TakenPicture> pictures;  ///< set behind the values
  std::vector<TakenValue> shapes;      ///< of buttons, set last: an outline may come from the picture

  bool isEmpty() const { return values.empty() && pictures.empty() && shapes.empty(); }
};

/// One of the two Skins.
struct LookSide {
  State& state;
  SkinFolder folder;
};

/// The look of the screen of that entry of the Edit Section list: of all elements on it, which go by their
/// keys, the places, sizes, colours, fonts, styles and the pictures that image references name. A picture
/// under a fixed name, as that of the menu, isn't among them. Where the other Skin's reference leads to no
/// file, the picture stays.
TakenLook lookToTake(const LookSide& from, const LookSide& into, int entry, LookPart part);

}  // namespace veneerer
