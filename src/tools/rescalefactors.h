// What a rescale would come to, before it is run.
#pragma once

#include <QSize>
#include <optional>

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

/// The side of the canvas window that the field asks for, twips. Throws ScaleFault when it isn't above 0
/// pixels or is beyond 32 bits.
float wantedSide(const TextBox& field, const Screen& screen, Axis axis);

/// What everything on the canvas is multiplied by.
struct RescaleFactors {
  double across;
  double down;
  double fonts;
};

/// The factors of a rescale to Text7 and Text8 of Form6 as they stand; nothing where it would be refused.
std::optional<RescaleFactors> rescaleFactors(const State& state, const Screen& screen);

/// The Skin's own width and height, Text1 of Form4, pixels; an empty size where they tell none.
QSize skinResolution(const State& state);

/// What is to be typed into Text7 and Text8 for that factor in both directions, pixels. The canvas window is
/// larger than the Skin's resolution, so it differs from the resolution times the factor.
QSize sizeForFactor(const State& state, const Screen& screen, double factor);

/// The factor of the canvas window's width, or height, in pixels; nothing for a window of no size.
std::optional<double> factorOf(const State& state, const Screen& screen, double pixels, Axis axis);

}  // namespace veneerer
