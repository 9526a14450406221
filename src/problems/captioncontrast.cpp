#include "problems/captioncontrast.h"

#include "problems/contrast.h"
#include "problems/screenplace.h"

namespace veneerer {

std::optional<SeenCaption> CaptionContrasts::seen(const Element& element) {
  if (!isShownOnScreen(state_, element)) return {};
  const std::optional<CaptionLayout> caption = captions_.of(element);
  if (!caption || hiderOf(state_, element, scale_)) return {};
  const QPointF corner = pixelPlace(element, scale_).topLeft();
  const QRectF part = caption->ink.translated(corner) & partWithinContainers(element, scale_);
  if (part.isEmpty()) return {};
  return SeenCaption{
      &element, part,
      leastContrast(element.as<float>(Property::FontSize), element.as<bool>(Property::FontBold))};
}

std::optional<double> CaptionContrasts::of(const SeenCaption& caption, const Dress& dress) {
  const std::optional<double> ground = ground_.luminance(*caption.element, caption.part, dress);
  if (!ground) return {};
  const QRgb letters = dress.of(*caption.element, Property::ForeColor).toQColor().rgb();
  return contrastOf(luminanceOf(letters), *ground);
}

}  // namespace veneerer
