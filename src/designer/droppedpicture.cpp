#include "designer/droppedpicture.h"

#include <algorithm>

#include "canvas/buttonpicture.h"
#include "panels/textureslots.h"
#include "platform/platform.h"

namespace veneerer {

namespace {

Element* thumbnailOf(State& state, const Element& screen) {
  for (const Family* family : state.form5.families())
    for (Element* thumbnail : family->members()) {
      const TextureSlot slot = textureSlot(state, *thumbnail);
      if (std::ranges::find(slot.canvas, &screen) != slot.canvas.end()) return thumbnail;
    }
  return nullptr;
}

Element* takerOf(State& state, Element& element) {
  if (&element.window() == &state.form5 || takesChosenPicture(state, element)) return &element;
  return thumbnailOf(state, element);
}

QString filterOf(State& state, const Element& taker) {
  return &taker.window() == &state.form5 ? textureFilter(state, taker) : QString::fromLatin1(kButtonPictures);
}

}  // namespace

Element* pictureTaker(State& state, Element& element, const QString& path) {
  for (Element* each = &element; each; each = each->container())
    if (Element* taker = takerOf(state, *each))
      return fitsFilter(filterOf(state, *taker), path) ? taker : nullptr;
  return nullptr;
}

}  // namespace veneerer
