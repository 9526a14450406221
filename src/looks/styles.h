// The styles of "File Controls/Settings" that a new Skin begins with.
#pragma once

#include "forms/form4.h"
#include "looks/plans.h"

namespace veneerer::looks {

/// The size of the Skin, and the styles that suit the look in it. Whoever listens shows and hides what they
/// stand for.
void chooseStyles(Form4& form4, const Look& look, const design::Plan& plan);

}  // namespace veneerer::looks
