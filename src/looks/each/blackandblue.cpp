#include "looks/looks.h"

namespace veneerer::looks {

// The colours of the built-in design, with the grooves of a record behind everything.
const Look kBlackAndBlue = {
    .name = "Black and Blue",
    .what = QT_TRANSLATE_NOOP("Looks", "Black with blue light, the menu at the left"),
    .shipped = "Black_and_Blue_gif_V8.0(800x600)",
    .arrangement = Arrangement::MenuLeft,
    .motif = Motif::Rings,
    .menuIcons = IconPlace::Above,
    .buttons = {.menu = {Tone::Raised, 0, 6, 2, 45},
                .transport = {Tone::Accent, 0, 6, 2, 45},
                .plain = {Tone::Raised, 0, 6, 2, 45},
                .primary = {Tone::Accent, 0, 6, 2, 40},
                .tab = {Tone::Raised, 0, 6, 2, 45},
                .key = {Tone::Raised, 0, 6, 2, 40},
                .wideKey = {Tone::Accent, 0, 6, 2, 45}},
    .bars = Tone::Ground,
    .fields = Tone::Raised,
    .lines = 45,
    .choices = {},
    .covers = {{.layout = {.count = 10, .dates = true}, .frames = true},
               {.layout = {.count = 15}, .frames = true, .seeThrough = true}},
    .font = "Arial",
    .colours = {{30, 120, 215}, {10, 16, 28}, {222, 232, 245}},
    .size = {800, 600},
};

}  // namespace veneerer::looks
