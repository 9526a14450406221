#include "looks/looks.h"

namespace veneerer::looks {

// Flat and quiet: no gradient, no gloss, one strong colour for what is to be touched next.
const Look kPaper = {
    .name = "Paper",
    .what = QT_TRANSLATE_NOOP("Looks", "Flat and light, one strong colour, the menu on top"),
    .shipped = nullptr,
    .arrangement = Arrangement::MenuTop,
    .motif = Motif::Bands,
    .menuIcons = IconPlace::Left,
    .buttons = {.menu = {Tone::Raised, 0, 2, 0, 0},
                .transport = {Tone::Paper, 0, 2, 0, 0},
                .plain = {Tone::Ground, 0, 2, 0, 0},
                .primary = {Tone::Accent, 0, 2, 0, 0},
                .tab = {Tone::Ground, 0, 2, 0, 0},
                .key = {Tone::Ground, 0, 2, 0, 0},
                .wideKey = {Tone::Paper, 0, 2, 0, 0}},
    .bars = Tone::Raised,
    .fields = Tone::Ground,
    .lines = 25,
    .choices = {.jumpToLetter = 0, .navigation = 0, .genre = 0, .player = 1},
    .covers = {{.layout = {.count = 10}, .seeThrough = true}, {.layout = {.count = 18}, .seeThrough = true}},
    .font = "Arial",
    .colours = {{214, 62, 52}, {246, 244, 239}, {34, 36, 42}},
    .size = {1280, 800},
};

}  // namespace veneerer::looks
