#include "looks/looks.h"

namespace veneerer::looks {

// Warm and dark, with buttons that slope like the fins of an old car.
const Look kCopperLounge = {
    .name = "Copper Lounge",
    .what = QT_TRANSLATE_NOOP("Looks", "Warm copper with sloping buttons, the menu at the foot"),
    .shipped = "Copper_Lounge(1024x768)",
    .arrangement = Arrangement::MenuFoot,
    .motif = Motif::Slats,
    .menuIcons = IconPlace::Left,
    .buttons = {.menu = {Tone::Raised, 0, 3, 4, 40},
                .transport = {Tone::Accent, 0, 3, 4, 35},
                .plain = {Tone::Raised, 1, 3, 4, 35},
                .primary = {Tone::Accent, 3, 3, 4, 35},
                .tab = {Tone::Raised, 4, 3, 4, 35},
                .key = {Tone::Raised, 0, 3, 4, 35},
                .wideKey = {Tone::Accent, 0, 3, 4, 35}},
    .bars = Tone::Ground,
    .fields = Tone::Paper,
    .lines = 55,
    .choices = {.jumpToLetter = 1, .navigation = 0, .genre = 1, .player = 1},
    .covers = {{.layout = {.count = 12}, .frames = true},
               {.layout = {.count = 7, .columns = 7, .overlapping = true}, .seeThrough = true}},
    .font = "Arial",
    .colours = {{214, 128, 52}, {40, 25, 18}, {250, 236, 214}},
    .size = {1024, 768},
};

}  // namespace veneerer::looks
