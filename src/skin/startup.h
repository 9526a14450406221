// What happens between the program's start and the loaded Skin.
#pragma once

#include "forms/state.h"
#include "platform/platform.h"
#include "skin/skinloader.h"

namespace veneerer {

/// The Skin that is taken when the settings name none or one that is gone.
inline constexpr char kDefaultSkin[] = "Black_and_Blue_gif_V8.0(800x600)";

/// Shows the splash, fills the lists, reads the current Skin's name and asks whether to load it. On OK the
/// Skin is loaded; on Cancel the chooser is shown. True for OK. A name that is given is the current Skin's,
/// and nothing is asked. Throws RecordError.
bool startUp(State& state, const Platform& platform, SkinLoader& loader, const QString& given = {});

/// Lists the Skins of the root in Combo3, whose text stays.
void listSkins(State& state, const Platform& platform);

/// Opens the chooser: lists the Skins in it and in Combo3, and hides the canvas.
void openChooser(State& state, const Platform& platform);

/// The operator's choice of a Skin in the chooser: hides it and runs the full load. Throws RecordError.
void chooseSkin(State& state, const QString& name, SkinLoader& loader);

}  // namespace veneerer
