#include "tools/rescalefactors.h"

#include <cmath>

#include "elements/numbers.h"
#include "tools/resizer.h"

namespace veneerer {

namespace {

double sideOf(const State& state, Axis axis) {
  return axis == Axis::X ? state.form1.width() : state.form1.height();
}

double twipsPerPixel(const Screen& screen, Axis axis) {
  return axis == Axis::X ? screen.twipsPerPixelX() : screen.twipsPerPixelY();
}

int pixelsFor(const State& state, const Screen& screen, double factor, Axis axis) {
  return toWhole(sideOf(state, axis) * factor / twipsPerPixel(screen, axis)).value_or(0);
}

}  // namespace

float wantedSide(const TextBox& field, const Screen& screen, Axis axis) {
  const double pixels = std::nearbyint(leadingNumber(field.text()));
  if (pixels <= 0) throw ScaleFault(QT_TRANSLATE_NOOP("Tools", "width and height must be above 0 pixels"));
  const auto twips = PixelsToTwips(screen, pixels, axis);
  if (!twips) throw ScaleFault(QT_TRANSLATE_NOOP("Tools", "the new size is beyond 32 bits"));
  return static_cast<float>(*twips);
}

std::optional<RescaleFactors> rescaleFactors(const State& state, const Screen& screen) try {
  const double width = wantedSide(*state.form6.Text7, screen, Axis::X);
  const double height = wantedSide(*state.form6.Text8, screen, Axis::Y);
  Resizer::requireScale(state.form1, screen, static_cast<float>(width), static_cast<float>(height));
  // To the screen first, then in one direction after the other; fonts take the mean of each step.
  const auto [screenX, screenY] = Resizer::screenFactors(screen);
  const double stepX = width / (state.form1.width() * screenX);
  const double stepY = height / (state.form1.height() * screenY);
  return RescaleFactors{screenX * stepX, screenY * stepY,
                        (screenX + screenY) / 2 * (stepX + 1) / 2 * (1 + stepY) / 2};
} catch (const ScaleFault&) {
  return std::nullopt;
}

QSize skinResolution(const State& state) {
  const QSize size(leadingWhole(state.form4.Text1[0].text()), leadingWhole(state.form4.Text1[1].text()));
  return size.isEmpty() ? QSize(0, 0) : size;
}

QSize sizeForFactor(const State& state, const Screen& screen, double factor) {
  return {pixelsFor(state, screen, factor, Axis::X), pixelsFor(state, screen, factor, Axis::Y)};
}

std::optional<double> factorOf(const State& state, const Screen& screen, double pixels, Axis axis) {
  const double factor = pixels * twipsPerPixel(screen, axis) / sideOf(state, axis);
  return std::isfinite(factor) && factor > 0 ? std::optional(factor) : std::nullopt;
}

}  // namespace veneerer
