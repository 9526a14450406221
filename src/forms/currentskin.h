// The Skin in hand.
#pragma once

#include "forms/state.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// The folder of the Skin that Form4.Combo3 names, whether or not it is there.
inline SkinFolder currentSkinFolder(const State& state, const ProgramFolder& program) {
  return SkinFolder(program, state.form4.Combo3->text());
}

}  // namespace veneerer
