#include "looks/looks.h"

namespace veneerer::looks {

// For those who see little: two colours, thick edges, nothing behind the texts.
const Look kClearView = {
    .name = "Clear View",
    .what = QT_TRANSLATE_NOOP(
        "Looks", "The highest contrast, thick edges and nothing behind the texts, for the hard of seeing"),
    .shipped = nullptr,
    .arrangement = Arrangement::MenuRight,
    .motif = Motif::Plain,
    .menuIcons = IconPlace::Above,
    .buttons = {.menu = {Tone::Paper, 0, 0, 0, 0},
                .transport = {Tone::Accent, 0, 0, 0, 0},
                .plain = {Tone::Paper, 0, 0, 0, 0},
                .primary = {Tone::Accent, 0, 0, 0, 0},
                .tab = {Tone::Paper, 0, 0, 0, 0},
                .key = {Tone::Paper, 0, 0, 0, 0},
                .wideKey = {Tone::Accent, 0, 0, 0, 0}},
    .bars = Tone::Ground,
    .fields = Tone::Paper,
    .lines = 100,
    .choices = {.jumpToLetter = 0, .navigation = 0, .genre = 0, .player = 1},
    .covers = {{.layout = {.count = 6}, .frames = true}, {.layout = {.count = 8}, .frames = true}},
    .font = "Arial",
    .colours = {{255, 214, 0}, {0, 0, 0}, {255, 255, 255}},
    .size = {1280, 1024},
};

}  // namespace veneerer::looks
