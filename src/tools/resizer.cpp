#include "tools/resizer.h"

#include <QScopedValueRollback>
#include <cmath>

#include "elements/family.h"
#include "elements/numbers.h"

namespace veneerer {

namespace {

constexpr std::int16_t kDesignWidth = 1024;  // pixels
constexpr std::int16_t kDesignHeight = 768;

// An assignment whose value is beyond a Single fails, and the walk goes on.
void scale(Element& element, Property property, float factor) {
  if (!element.has(property)) return;
  const float product = element.as<float>(property) * factor;
  if (std::isfinite(product)) element.set(property, product);
}

// One move takes effect as a whole or not at all.
void move(Element& element, float factorX, float factorY) {
  const float left = element.left() * factorX;
  const float top = element.top() * factorY;
  const float width = element.width() * factorX;
  const float height = element.height() * factorY;
  if (std::isfinite(left) && std::isfinite(top) && std::isfinite(width) && std::isfinite(height))
    element.place(left, top, width, height);
}

void scaleElement(Element& element, float factorX, float factorY, float fontFactor) {
  if (element.kind() == Kind::ComboBox) {
    scale(element, Property::Left, factorX);
    scale(element, Property::Top, factorY);
    scale(element, Property::Width, factorX);
  } else {
    move(element, factorX, factorY);
  }
  scale(element, Property::FontSize, fontFactor);
}

// The toolkit of the design counts a screen's pixels in 16 bits, by way of its twips.
std::int16_t screenPixels(int pixels, double twipsPerPixel) {
  const std::optional<std::int32_t> whole = toWhole(pixels * twipsPerPixel / twipsPerPixel);
  if (!whole || *whole < INT16_MIN || *whole > INT16_MAX)
    throw ScaleFault(QT_TRANSLATE_NOOP("Tools", "the screen is too large"));
  return static_cast<std::int16_t>(*whole);
}

float screenFactorX(const Screen& screen) {
  return static_cast<float>(screenPixels(screen.width, screen.twipsPerPixelX())) /
         static_cast<float>(kDesignWidth);
}

float screenFactorY(const Screen& screen) {
  return static_cast<float>(screenPixels(screen.height, screen.twipsPerPixelY())) /
         static_cast<float>(kDesignHeight);
}

float ratio(float size, std::int32_t remembered) {
  if (remembered == 0) throw ScaleFault(QT_TRANSLATE_NOOP("Tools", "a window of no size can't be scaled"));
  const float factor = size / static_cast<float>(remembered);
  if (!std::isfinite(factor)) throw ScaleFault(QT_TRANSLATE_NOOP("Tools", "the scale is beyond a Single"));
  return factor;
}

std::int32_t wholeTwips(float twips) {
  const std::optional<std::int32_t> whole = toWhole(twips);
  if (!whole) throw ScaleFault(QT_TRANSLATE_NOOP("Tools", "the window's size is beyond 32 bits"));
  return *whole;
}

void requireSide(float now, float screenFactor, float wanted) {
  if (wholeTwips(now * screenFactor) <= 0)
    throw ScaleFault(QT_TRANSLATE_NOOP("Tools", "a window of no size can't be scaled"));
  if (wholeTwips(wanted) <= 0) throw ScaleFault(QT_TRANSLATE_NOOP("Tools", "the new size must be above 0"));
}

}  // namespace

void Resizer::ScaleAll(float factorX, float factorY, Window& window) {
  const QScopedValueRollback<bool> walking(isWalking_, true);
  const float fontFactor = (factorX + factorY) / 2;
  for (Family* family : window.families())
    for (Element* element : family->members()) scaleElement(*element, factorX, factorY, fontFactor);
  if (windowMoves_) move(window, factorX, factorY);
}

void Resizer::requireScale(const Window& window, const Screen& screen, float width, float height) {
  requireSide(window.width(), screenFactorX(screen), width);
  requireSide(window.height(), screenFactorY(screen), height);
}

std::pair<float, float> Resizer::screenFactors(const Screen& screen) {
  return {screenFactorX(screen), screenFactorY(screen)};
}

void Resizer::scaleToScreen(Window& window, const Screen& screen) {
  windowMoves_ = true;
  factorX_ = screenFactorX(screen);
  factorY_ = screenFactorY(screen);
  ScaleAll(factorX_, factorY_, window);
  remember(window);
}

void Resizer::scaleOnResize(Window& window) {
  if (isWalking_) return;
  windowMoves_ = false;
  factorX_ = ratio(window.width(), lastWidth_);
  factorY_ = ratio(window.height(), lastHeight_);
  ScaleAll(factorX_, factorY_, window);
  remember(window);
}

void Resizer::remember(const Window& window) {
  lastHeight_ = wholeTwips(window.height());
  lastWidth_ = wholeTwips(window.width());
}

}  // namespace veneerer
