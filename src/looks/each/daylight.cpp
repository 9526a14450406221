#include "looks/looks.h"

namespace veneerer::looks {

// For a bright room: a light ground between coloured bars.
const Look kDaylight = {
    .name = "Daylight",
    .what = QT_TRANSLATE_NOOP("Looks", "A light ground with coloured bars, the menu at the right"),
    .shipped = "Daylight_Wide(1920x1080)",
    .arrangement = Arrangement::MenuRight,
    .motif = Motif::Bubbles,
    .menuIcons = IconPlace::Above,
    .buttons = {.menu = {Tone::Accent, 0, 6, 0, 0},
                .transport = {Tone::Second, 0, 6, 0, 0},
                .plain = {Tone::Raised, 0, 1, 2, 10},
                .primary = {Tone::Second, 0, 6, 0, 0},
                .tab = {Tone::Raised, 5, 3, 2, 10},
                .key = {Tone::Raised, 0, 6, 2, 10},
                .wideKey = {Tone::Accent, 0, 6, 0, 0}},
    .bars = Tone::Accent,
    .fields = Tone::Raised,
    .lines = 30,
    .choices = {.jumpToLetter = 3, .navigation = 1, .genre = 2, .player = 2},
    .covers = {{.layout = {.count = 12}, .frames = true, .seeThrough = true},
               {.layout = {.count = 8, .dates = true}, .frames = true}},
    .font = "Arial",
    .colours = {{0, 112, 124}, {238, 245, 246}, {18, 44, 58}},
    .size = {1920, 1080},
};

}  // namespace veneerer::looks
