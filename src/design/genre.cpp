// The genre screen and the genre bar.
#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kGenres[] = {"Rock",   "Pop",        "Dance",   "Country", "Jazz",     "Blues",
                                   "Soul",   "R&B",        "Hip Hop", "Rap",     "Reggae",   "Latin",
                                   "Folk",   "Metal",      "Punk",    "Indie",   "Disco",    "House",
                                   "Techno", "Trance",     "Ambient", "Swing",   "Big Band", "Classical",
                                   "Gospel", "Soundtrack", "Oldies",  "Karaoke"};
constexpr const char* kLetterKeys[] = {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N",
                                       "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", "#"};
constexpr const char* kBar[] = {"Up",    "Down",    "Back", "Rock", "Pop",
                                "Dance", "Country", "Jazz", "Soul", "Blues"};

// A tile is the name's own ground. Pictures stand on it only in the styles that have them.
void composeTile(Composer& c, const Box& tile, int i) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[13];
  const Ground& on = c.theme.row;
  const TextLook name{on.heading, 10, true, Alignment::Center};
  c.text(f.Label20[i], screen, tile, QString::fromLatin1(kGenres[i]), name);
  f.Label20[i].setBackColor(on.back);
  f.Label20[i].setOpaque(true);
  f.Label20[i].setToolTipText(QStringLiteral("Genre Label  %1").arg(i));
  Box inner = tile.inset(c.px(6), c.px(4));
  inner.cutTop(c.lineOf(name), c.px(2));
  const TextLook count{on.muted, 8, false, Alignment::Center};
  const Box counted = Box(inner).cutBottom(c.lineOf(count));
  if (c.plan.albumCounts) inner.cutBottom(counted.h, c.px(2));
  c.artwork(f.Picture20[i], screen, inner);
  f.Picture20[i].setToolTipText(QStringLiteral("Genre Icon  %1").arg(i));
  const Grid thumbs(inner.inset(c.px(2)), 4, 1, c.px(2));
  for (int k = 0; k < 4; ++k) c.artwork(f.Picture26[4 * i + k], screen, thumbs.cell(k));
  c.text(f.Label59[i], screen, counted, QStringLiteral("() Album(s)"), count);
}

// The title's picture, the steps through the pages, and what the tiles stand for.
void composeHeader(Composer& c, Box header) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[13];
  const Box tabs = header.cutRight(3 * c.px(80) + 2 * c.px(4), c.px(kMargin)).inset(0, c.px(2));
  const Box steps = header.cutRight(3 * c.px(56) + 2 * c.px(4), c.px(kMargin)).inset(0, c.px(2));
  c.buttons(f.lvButtons_H46, 0, screen, Grid(tabs, 3, 1, c.px(4)),
            std::to_array<const char*>({"GENRES", "ARTISTS", "YEARS"}), c.theme.tab);
  const Grid step(steps, 3, 1, c.px(4));
  c.button(f.lvButtons_H35[2], screen, step.cell(0), QStringLiteral("<"), c.theme.plain, 14);
  c.button(f.lvButtons_H35[1], screen, step.cell(1), QStringLiteral("Back"), c.theme.plain);
  c.button(f.lvButtons_H35[0], screen, step.cell(2), QStringLiteral(">"), c.theme.plain, 14);
  c.clearPanel(f.Picture2[9], screen, header.inset(0, c.px(4)));
}

// Either the one button or the letters are shown.
void composeJump(Composer& c, const Box& foot) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[13];
  c.buttons(f.lvButtons_H35, 4, screen, Grid(foot, 27, 1, c.px(2)), kLetterKeys, c.theme.key, 8);
  c.button(f.lvButtons_H35[3], screen, foot.centred(c.px(200), foot.h), QStringLiteral("Jump To Letter"),
           c.theme.primary);
}

void composeBar(Composer& c) {
  PictureBox& bar = c.form.Picture12[0];
  const Box area = c.plan.genreBar.inside().inset(c.px(6));
  const Grid grid = c.plan.genreBarUpright ? Grid(area, 1, 10, c.px(4)) : Grid(area, 10, 1, c.px(4));
  c.buttons(c.form.lvButtons_H39, 0, bar, grid, kBar, c.theme.tab, 8);
}

}  // namespace

void composeGenre(Composer& c) {
  auto [header, body] = partsOf(c, c.form.Picture1[13]);
  composeHeader(c, header);
  composeJump(c, body.cutBottom(c.px(kTouch), c.px(6)));
  const Grid tiles = body.h > body.w ? Grid(body, 4, 7, c.px(6)) : Grid(body, 7, 4, c.px(6));
  for (int i = 0; i < 28; ++i) composeTile(c, tiles.cell(i), i);
  composeBar(c);
}

}  // namespace veneerer::design
