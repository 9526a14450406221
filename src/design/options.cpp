// The options screen and the dialog of play options.
#include "design/keyboard.h"
#include "design/screens.h"

namespace veneerer::design {

namespace {

// "Appearence" is the jukebox's own spelling.
constexpr const char* kOptions[] = {"General||Settings",
                                    "Appearence||Settings",
                                    "Random Play||Settings",
                                    "Credit||Settings",
                                    "Volume||Settings",
                                    "Queue||Settings",
                                    "Search||Settings",
                                    "Security||Settings",
                                    "Network||Settings",
                                    "Catalogue||Settings",
                                    "Screen||Settings",
                                    "Statistics",
                                    "About"};
constexpr const char* kPlayOptions[] = {
    "Play NOW",          "Play Next",       "Add To||Queue", "Add To||Playlist",
    "Add Entire||Album", "Download||Track", "Burn CD",       "Cancel"};

void composeAlternates(Composer& c, const Box& place) {
  Form1& f = c.form;
  PictureBox& panel = *f.Picture28;
  c.clearPanel(panel, f.Picture1[15], place);
  const Grid rows(place.inside().inset(c.px(10), c.px(8)), 1, 4, 0);
  for (int i = 0; i < 4; ++i)
    c.line(f.Label33[4 + i], panel, rows.cell(i), QStringLiteral("Alternate Song %1").arg(i + 1),
           {c.theme.card.body, 10});
}

void composeKeys(Composer& c, const Box& place) {
  Form1& f = c.form;
  PictureBox& panel = *f.Picture32;
  c.clearPanel(panel, f.Picture1[15], place);
  Box area = place.inside().inset(c.px(10), c.px(8));
  Box top = area.cutTop(c.px(28), c.px(6));
  c.artwork(*f.Picture33, panel, top.cutLeft(top.h, c.px(8)));
  c.line(f.Label33[8], panel, top, QStringLiteral("Message"), {c.theme.screen.heading, 12, true});
  Keyboard keyboard(c, f.lvButtons_H62, panel, area, 3);
  keyboard.letters(0, 0);
  constexpr WordKey kWords[] = {{26, 2, 0, 3, "Space"}, {27, 2, 17, 3, "Done"}};
  keyboard.words(kWords);
}

void composeSong(Composer& c, Box area) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[15];
  const Ground& on = c.theme.screen;
  c.artwork(*f.Picture4, screen, cutPicture(area, c.px(14)));
  const TextLook looks[] = {{on.heading, 14, true}, {on.body, 11}, {on.muted, 10}};
  const Grid rows(area, 1, 7, 0);
  for (int i = 0; i < 3; ++i)
    c.line(f.Label34[i], screen, rows.cell(i), QStringLiteral("TEXT EXAMPLE"), looks[i]);
  for (int i = 0; i < 4; ++i)
    c.line(f.Label33[i], screen, rows.cell(3 + i),
           i == 0 ? QStringLiteral("Message") : QStringLiteral("TEXT EXAMPLE"),
           {i == 0 ? on.accent : on.body, 9, i == 0});
}

}  // namespace

void composeOptions(Composer& c) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[5];
  auto [header, body] = partsOf(c, screen);
  c.line(*f.Label29, screen, header, QStringLiteral("Options"), {c.theme.header.heading, 16, true});
  Box right = body.cutRight(body.w * 11 / 20, c.px(kMargin));
  const Grid foot(right.cutBottom(c.px(52), c.px(kMargin)), 3, 1, c.px(kGap));
  c.button(*f.lvButtons_H31, screen, foot.cell(0), QStringLiteral("Save||Settings"), c.theme.primary);
  c.button(*f.lvButtons_H32, screen, foot.cell(1), QStringLiteral("Power OFF"), kDangerButton);
  c.button(*f.lvButtons_H33, screen, foot.cell(2), QStringLiteral("BACK"), c.theme.plain);
  c.panel(*f.Picture9, screen, right, c.theme.row.back);
  const Grid grid(body, 2, 7, c.px(kGap));
  c.buttons(f.lvButtons_H30, 0, screen, grid, kOptions, c.theme.plain);
  put(f.lvButtons_H30[12], grid.span(0, 6, 2));
}

void composePlayOptions(Composer& c) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[15];
  Box area = dialogOf(screen).inset(c.px(20), c.px(16));
  composeKeys(c, area.cutBottom(c.px(196), c.px(10)));
  c.buttons(f.lvButtons_H41, 0, screen, Grid(area.cutBottom(c.px(104), c.px(10)), 4, 2, c.px(8)),
            kPlayOptions, c.theme.primary);
  composeAlternates(c, area.cutRight(c.px(200), c.px(14)));
  composeSong(c, area);
}

}  // namespace veneerer::design
