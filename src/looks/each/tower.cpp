#include "looks/looks.h"

namespace veneerer::looks {

// Made for screens that stand upright; on others it keeps its menu at the foot.
const Look kTower = {
    .name = "Tower",
    .what = QT_TRANSLATE_NOOP(
        "Looks", "For upright screens: flowing curves, rounded buttons, the menu under the thumbs"),
    .shipped = nullptr,
    .arrangement = Arrangement::MenuFoot,
    .motif = Motif::Waves,
    .menuIcons = IconPlace::Above,
    .buttons = {.menu = {Tone::Raised, 0, 3, 2, 25},
                .transport = {Tone::Accent, 0, 3, 2, 25},
                .plain = {Tone::Raised, 0, 3, 2, 25},
                .primary = {Tone::Accent, 0, 3, 1, 25},
                .tab = {Tone::Raised, 4, 3, 2, 25},
                .key = {Tone::Raised, 0, 3, 2, 25},
                .wideKey = {Tone::Accent, 0, 3, 1, 25}},
    .bars = Tone::Ground,
    .fields = Tone::Raised,
    .lines = 40,
    .choices = {.jumpToLetter = 0, .navigation = 0, .genre = 0, .player = 0},
    .covers = {{.layout = {.count = 12}, .frames = true, .seeThrough = true},
               {.layout = {.count = 6, .dates = true}, .frames = true}},
    .font = "Arial",
    .colours = {{92, 200, 176}, {28, 26, 58}, {238, 240, 252}},
    .size = {1080, 1920},
};

}  // namespace veneerer::looks
