// Form6.List1, the list of fonts.
#pragma once

#include "forms/state.h"

namespace veneerer {

/// A family's name as a Skin holds it: without the foundry that the toolkit adds in brackets where a family
/// comes from several ("C059 [UKWN]").
QString withoutFoundry(const QString& family);

/// Fills List1 with the families of this machine and those that the elements of the canvas name, each once
/// and in order without regard to case. What is chosen stays chosen, and that is no selection.
void listFonts(State& state);

}  // namespace veneerer
