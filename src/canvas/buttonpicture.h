// The right press on a button of the canvas, which gives it a picture of the operator's choice.
#pragma once

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

/// The file dialog's filter for a button and for Picture17.
inline constexpr char kButtonPictures[] = "Image Files|*.bmp;*.jpg;*.gif";

/// Whether a right press gives the element a picture: the buttons of the canvas and Picture17.
bool takesChosenPicture(const State& state, const Element& element);

/// Asks for an image file. The chosen one is shown and its bare name, behind a backslash, kept as the
/// element's image reference; cancel clears both. A file that can't be decoded is told of and changes
/// nothing.
void choosePicture(State& state, const Platform& platform, Element& element);

}  // namespace veneerer
