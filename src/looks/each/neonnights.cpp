#include "looks/looks.h"

namespace veneerer::looks {

// Tubes of light over a dark street.
const Look kNeonNights = {
    .name = "Neon Nights",
    .what = QT_TRANSLATE_NOOP("Looks", "Glowing lines on the night, outlined buttons, the menu at the foot"),
    .shipped = nullptr,
    .arrangement = Arrangement::MenuFoot,
    .motif = Motif::Grid,
    .menuIcons = IconPlace::Above,
    .buttons = {.menu = {Tone::Ground, 0, 1, 2, 35},
                .transport = {Tone::Accent, 6, 3, 2, 50},
                .plain = {Tone::Ground, 0, 1, 2, 35},
                .primary = {Tone::Accent, 6, 3, 2, 45},
                .tab = {Tone::Ground, 4, 1, 2, 35},
                .key = {Tone::Raised, 0, 3, 2, 45},
                .wideKey = {Tone::Accent, 0, 3, 2, 45}},
    .bars = Tone::Ground,
    .fields = Tone::Raised,
    .lines = 100,
    .choices = {.jumpToLetter = 3, .navigation = 0, .genre = 0, .player = 0},
    .covers = {{.layout = {.count = 12}, .frames = true, .seeThrough = true},
               {.layout = {.count = 7, .columns = 7, .overlapping = true}, .seeThrough = true}},
    .font = "Arial",
    .colours = {{255, 46, 166}, {16, 8, 34}, {226, 240, 255}},
    .size = {1366, 768},
};

}  // namespace veneerer::looks
