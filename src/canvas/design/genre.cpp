// The genre screen and the genre bar.
#include "canvas/design/screens.h"

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
  const Box counted = inner.cutBottom(c.lineOf(count), c.px(2));
  c.artwork(f.Picture20[i], screen, inner);
  f.Picture20[i].setToolTipText(QStringLiteral("Genre Icon  %1").arg(i));
  const Grid thumbs(inner.inset(c.px(2)), 4, 1, c.px(2));
  for (int k = 0; k < 4; ++k) c.panel(f.Picture26[4 * i + k], screen, thumbs.cell(k), kCard.back);
  c.text(f.Label59[i], screen, counted, QStringLiteral("() Album(s)"), count);
}

void composeNavigation(Composer& c, Box foot) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[13];
  c.button(f.lvButtons_H35[2], screen, foot.cutLeft(c.px(64), c.px(kGap)), QStringLiteral("<"), c.theme.plain,
           14);
  c.button(f.lvButtons_H35[0], screen, foot.cutRight(c.px(64), c.px(kGap)), QStringLiteral(">"),
           c.theme.plain, 14);
  c.button(f.lvButtons_H35[1], screen, foot.cutRight(c.px(76), c.px(kGap)), QStringLiteral("Back"),
           c.theme.plain);
  // Either the one button or the letters are shown.
  c.buttons(f.lvButtons_H35, 4, screen, Grid(foot, 27, 1, c.px(1)), kLetterKeys, c.theme.key, 8);
  c.button(f.lvButtons_H35[3], screen, foot, QStringLiteral("Jump To Letter"), c.theme.primary);
}

void composeBar(Composer& c) {
  PictureBox& bar = c.form.Picture12[0];
  const Box area = c.plan.genreBar.inside().inset(c.px(6));
  const Grid grid = c.plan.genreBarUpright ? Grid(area, 1, 10, c.px(4)) : Grid(area, 10, 1, c.px(4));
  c.buttons(c.form.lvButtons_H39, 0, bar, grid, kBar, c.theme.tab, 8);
}

}  // namespace

void composeGenre(Composer& c) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[13];
  auto [header, body] = partsOf(c, screen);
  const Grid tabs(header.inset(0, c.px(2)).cutRight(3 * c.px(96) + 2 * c.px(kGap)), 3, 1, c.px(kGap));
  c.buttons(f.lvButtons_H46, 0, screen, tabs, std::to_array<const char*>({"GENRES", "ARTISTS", "YEARS"}),
            c.theme.tab);
  header.cutRight(3 * c.px(96) + 2 * c.px(kGap), c.px(kMargin));
  c.panel(f.Picture2[9], screen, header.inset(0, c.px(4)), c.theme.header.back);
  composeNavigation(c, body.cutBottom(c.px(kTouch), c.px(6)));
  const Grid tiles(body, 7, 4, c.px(6));
  for (int i = 0; i < 28; ++i) composeTile(c, tiles.cell(i), i);
  composeBar(c);
}

}  // namespace veneerer::design
