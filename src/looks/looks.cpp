#include "looks/look.h"

namespace veneerer::looks {

namespace {

using design::Plan;
using design::rgb;
using design::Theme;

constexpr Colour kWhite = rgb(255, 255, 255);

Plan blackAndBluePlan() {
  Plan plan = design::builtInPlan();
  plan.dialog = {160, 80, 640, 520};
  plan.confirm = {220, 190, 520, 220};
  plan.pin = {594, 100, 201, 305};
  plan.name = {200, 130, 560, 60};
  plan.namePoints = 20;
  return plan;
}

Plan copperPlan() {
  Plan plan;
  plan.width = 1024;
  plan.height = 768;
  plan.scale = 1.14;
  plan.textScale = 1.15;
  plan.logo = {0, 0, 224, 80};
  plan.player = {224, 0, 800, 80};
  plan.screen = {0, 80, 1024, 524};
  plan.status = {0, 604, 1024, 60};
  plan.menu = {0, 664, 1024, 104};
  plan.menuColumns = 7;
  plan.stage = plan.screen;
  plan.name = {112, 150, 800, 70};
  plan.namePoints = 22;
  plan.dialog = {0, 80, 1024, 584};
  plan.confirm = {202, 220, 620, 226};
  plan.pin = {772, 120, 232, 350};
  plan.popup = {690, 150, 324, 450};
  plan.genreBar = {0, 80, 130, 524};
  plan.genreBarUpright = true;
  plan.statusOnBackdrop = true;
  plan.sliderUpright = true;
  return plan;
}

Theme copperTheme() {
  constexpr Colour kCream = rgb(250, 236, 214);
  constexpr Colour kSand = rgb(224, 202, 172);
  constexpr Colour kAmber = rgb(255, 190, 105);
  constexpr int kSoft = 3;
  constexpr int kSlant = 4;
  return {
      .screen = {rgb(38, 24, 18), kWhite, kCream, kSand, kAmber},
      .header = {rgb(30, 18, 13), kWhite, kCream, kSand, kAmber},
      .bar = {rgb(30, 18, 13), kWhite, kCream, kSand, kAmber},
      .row = {rgb(58, 38, 28), kWhite, kCream, kSand, kAmber},
      .field = {rgb(250, 236, 214), rgb(38, 24, 18), rgb(38, 24, 18), rgb(80, 56, 40), rgb(120, 60, 10)},
      .card = {design::kCardBack, kWhite, kCream, kSand, kAmber},
      .menu = {0, kSoft, rgb(98, 54, 28), kWhite, rgb(60, 32, 18), kSlant},
      .transport = {0, kSoft, rgb(134, 70, 24), kWhite, rgb(84, 42, 14), kSlant},
      .plain = {1, kSoft, rgb(92, 58, 40), kWhite, rgb(62, 38, 26), kSlant},
      .primary = {3, kSoft, rgb(150, 76, 18), kWhite, rgb(96, 46, 10), kSlant},
      .tab = {4, kSoft, rgb(76, 50, 36), kAmber, rgb(48, 30, 22), kSlant},
      .key = {0, kSoft, rgb(84, 56, 42), kWhite, rgb(56, 36, 27), kSlant},
      .wideKey = {0, kSoft, rgb(138, 72, 22), kWhite, rgb(88, 44, 12), kSlant},
      .track = rgb(70, 44, 30),
  };
}

Plan daylightPlan() {
  Plan plan;
  plan.width = 1920;
  plan.height = 1080;
  plan.scale = 1.66;
  plan.textScale = 1.5;
  plan.player = {0, 956, 1632, 124};
  plan.logo = {1632, 0, 288, 124};
  plan.menu = {1632, 124, 288, 956};
  plan.menuColumns = 2;
  plan.screen = {0, 0, 1632, 860};
  plan.status = {0, 860, 1632, 96};
  plan.stage = plan.screen;
  plan.name = {216, 60, 1200, 110};
  plan.namePoints = 22;
  plan.dialog = {216, 8, 1200, 844};
  plan.confirm = {366, 240, 900, 360};
  plan.pin = {1240, 150, 340, 520};
  plan.popup = {1150, 54, 470, 752};
  plan.genreBar = {0, 0, 1632, 104};
  plan.albumCounts = false;
  plan.statusOnBackdrop = true;
  return plan;
}

Theme daylightTheme() {
  constexpr Colour kInk = rgb(18, 44, 58);
  constexpr Colour kSlate = rgb(48, 74, 88);
  constexpr Colour kGrey = rgb(70, 92, 104);
  constexpr Colour kTeal = rgb(0, 98, 110);
  constexpr Colour kMint = rgb(150, 240, 226);
  constexpr int kFlat = 1;
  constexpr int kRounded = 6;
  return {
      .screen = {rgb(238, 245, 246), kInk, kSlate, kGrey, kTeal},
      .header = {rgb(0, 84, 96), kWhite, rgb(226, 246, 246), rgb(200, 232, 232), kMint},
      .bar = {rgb(0, 84, 96), kWhite, rgb(226, 246, 246), rgb(206, 234, 234), kMint},
      .row = {rgb(255, 255, 255), kInk, kSlate, kGrey, kTeal},
      .field = {rgb(255, 255, 255), kInk, kSlate, kGrey, kTeal},
      .card = {design::kCardBack, kWhite, rgb(226, 240, 242), rgb(194, 216, 221), kMint},
      .menu = {0, kRounded, rgb(0, 106, 118), kWhite, rgb(0, 106, 118), 0},
      .transport = {0, kRounded, rgb(176, 66, 20), kWhite, rgb(176, 66, 20), 0},
      .plain = {0, kFlat, rgb(222, 234, 237), kInk, rgb(196, 216, 221), 2},
      .primary = {0, kRounded, rgb(176, 66, 20), kWhite, rgb(176, 66, 20), 0},
      .tab = {5, kRounded, rgb(0, 106, 118), kWhite, rgb(0, 84, 96), 0},
      .key = {0, kRounded, rgb(255, 255, 255), kInk, rgb(214, 228, 232), 2},
      .wideKey = {0, kRounded, rgb(0, 106, 118), kWhite, rgb(0, 106, 118), 0},
      .track = rgb(176, 204, 210),
  };
}

}  // namespace

Look blackAndBlueLook() {
  return {.name = "Black_and_Blue_gif_V8.0(800x600)",
          .plan = blackAndBluePlan(),
          .theme = design::blackAndBlue(),
          .palette = {.backdrop = QColor(10, 14, 22),
                      .backdropEnd = QColor(7, 18, 36),
                      .header = QColor(12, 24, 44),
                      .bar = QColor(16, 23, 36),
                      .barEnd = QColor(8, 12, 20),
                      .accent = QColor(70, 160, 255),
                      .accentEnd = QColor(0, 82, 178),
                      .line = QColor(34, 60, 98),
                      .icon = QColor(120, 190, 255)},
          .motif = Motif::Rings,
          .menuIcons = IconPlace::Above,
          .choices = {},
          .covers = {{"10 Covers.cov", {10, 5, true, false, false}, true, false},
                     {"15 Covers.cov", {15, 5, false, false, false}, true, true}}};
}

Look copperLoungeLook() {
  return {.name = "Copper_Lounge(1024x768)",
          .plan = copperPlan(),
          .theme = copperTheme(),
          .palette = {.backdrop = QColor(38, 24, 18),
                      .backdropEnd = QColor(24, 14, 10),
                      .header = QColor(30, 18, 13),
                      .bar = QColor(34, 20, 14),
                      .barEnd = QColor(24, 14, 10),
                      .accent = QColor(232, 150, 70),
                      .accentEnd = QColor(150, 76, 30),
                      .line = QColor(120, 72, 40),
                      .icon = QColor(255, 200, 130)},
          .motif = Motif::Slats,
          .menuIcons = IconPlace::Left,
          .choices = {.jumpToLetter = 1, .navigation = 0, .genre = 1, .player = 1},
          .covers = {{"12 Covers.cov", {12, 6, false, false, false}, true, false},
                     {"7 Coverflow.cov", {7, 7, false, false, true}, false, true}}};
}

Look daylightWideLook() {
  return {.name = "Daylight_Wide(1920x1080)",
          .plan = daylightPlan(),
          .theme = daylightTheme(),
          .palette = {.backdrop = QColor(244, 249, 250),
                      .backdropEnd = QColor(228, 240, 242),
                      .header = QColor(0, 84, 96),
                      .bar = QColor(0, 84, 96),
                      .barEnd = QColor(0, 70, 82),
                      .accent = QColor(0, 128, 140),
                      .accentEnd = QColor(214, 98, 40),
                      .line = QColor(176, 206, 212),
                      .icon = QColor(190, 246, 238)},
          .motif = Motif::Bubbles,
          .menuIcons = IconPlace::Lettered,
          .choices = {.jumpToLetter = 3, .navigation = 1, .genre = 2, .player = 2},
          .covers = {{"18 Covers.cov", {18, 6, false, false, false}, true, true},
                     {"8 Covers.cov", {8, 4, true, false, false}, true, false}}};
}

}  // namespace veneerer::looks
