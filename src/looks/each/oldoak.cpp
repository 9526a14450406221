#include "looks/looks.h"

namespace veneerer::looks {

// The cabinet of an old jukebox: planks, brass and cream paper.
const Look kOldOak = {
    .name = "Old Oak",
    .what =
        QT_TRANSLATE_NOOP("Looks", "Planks of wood with brass keys and paper fields, the menu at the left"),
    .shipped = nullptr,
    .arrangement = Arrangement::MenuLeft,
    .motif = Motif::Grain,
    .menuIcons = IconPlace::Above,
    .buttons = {.menu = {Tone::Raised, 0, 5, 2, 30},
                .transport = {Tone::Accent, 0, 0, 2, 30},
                .plain = {Tone::Raised, 0, 0, 2, 30},
                .primary = {Tone::Accent, 0, 0, 2, 30},
                .tab = {Tone::Raised, 4, 0, 2, 30},
                .key = {Tone::Paper, 0, 0, 2, 15},
                .wideKey = {Tone::Accent, 0, 0, 2, 30}},
    .bars = Tone::Ground,
    .fields = Tone::Paper,
    .lines = 60,
    .choices = {.jumpToLetter = 0, .navigation = 1, .genre = 1, .player = 0},
    .covers = {{.layout = {.count = 10}, .frames = true},
               {.layout = {.count = 8, .dates = true}, .frames = true}},
    .font = "Times New Roman",
    .colours = {{206, 158, 74}, {66, 38, 20}, {248, 236, 208}},
    .size = {1024, 768},
};

}  // namespace veneerer::looks
