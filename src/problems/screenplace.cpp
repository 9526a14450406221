#include "problems/screenplace.h"

#include <algorithm>

#include "canvas/description.h"
#include "canvas/screens.h"
#include "painting/hittest.h"
#include "painting/seenelements.h"

namespace veneerer {

namespace {

bool hasArea(const Element& element) {
  return element.width() > 0 && element.height() > 0;
}

/// Looks for what hides a part of the window.
class Hider {
public:
  Hider(const State& state, const QRectF& part, const PixelScale& scale)
      : state_(state), part_(part), scale_(scale) {}

  const Element* above(const Element& element) const {
    const std::vector<Element*>& siblings = element.container()->children();
    for (auto at = std::ranges::find(siblings, &element) + 1; at != siblings.end(); ++at)
      if (const Element* found = among(**at)) return found;
    return nullptr;
  }

private:
  // The Main Screen is nothing but what it holds; other screens aren't shown at the same time.
  const Element* among(const Element& element) const {
    if (isSeeThrough(element)) return amongChildren(element);
    const bool counts = element.isVisible() && hasArea(element) && !isScreen(state_, element);
    return counts && hides(element) ? &element : nullptr;
  }

  const Element* amongChildren(const Element& container) const {
    for (const Element* child : container.children())
      if (const Element* found = among(*child)) return found;
    return nullptr;
  }

  bool hides(const Element& element) const {
    constexpr double kRounding = 0.5;
    return std::ranges::any_of(opaqueParts(element, pixelPlace(element, scale_)), [&](const QRectF& part) {
      return part.adjusted(-kRounding, -kRounding, kRounding, kRounding).contains(part_);
    });
  }

  const State& state_;
  QRectF part_;
  const PixelScale& scale_;
};

}  // namespace

int screenEntryOf(const State& state, const Element& element) {
  return std::max(0, entryHolding(state, element));
}

bool isShownOnScreen(const State& state, const Element& element) {
  for (const Element* e = &element; e->container(); e = e->container())
    if (!hasArea(*e) || !(e->isVisible() || isScreen(state, *e))) return false;
  return true;
}

QRectF pixelPlace(const Element& element, const PixelScale& scale) {
  const QRectF twips = windowRect(element);
  return QRectF(twips.x() * scale.x, twips.y() * scale.y, twips.width() * scale.x, twips.height() * scale.y);
}

QRectF partWithinContainers(const Element& element, const PixelScale& scale) {
  QRectF part = pixelPlace(element, scale);
  for (const Element* e = element.container(); e && e->container(); e = e->container())
    part &= pixelPlace(*e, scale);
  return part;
}

const Element* hiderOf(const State& state, const Element& element, const PixelScale& scale) {
  const QRectF part = partWithinContainers(element, scale);
  if (part.isEmpty()) return nullptr;
  const Hider hider(state, part, scale);
  for (const Element* e = &element; e->container() && !isScreen(state, *e); e = e->container())
    if (const Element* found = hider.above(*e)) return found;
  return nullptr;
}

}  // namespace veneerer
