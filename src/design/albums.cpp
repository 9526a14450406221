// The album view and the screen of what is playing.
#include "design/covers.h"
#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kTabs[] = {"Audio", "Video", "Karaoke", "Most||Played", "Newly||Added"};
constexpr const char* kQuickKeys[] = {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N",
                                      "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", "#"};

void composeSlider(Composer& c, int i, const Box& place) {
  Form1& f = c.form;
  PictureBox& track = f.Picture13[i];
  c.panel(track, f.Picture1[9], place, c.theme.track);
  const int side = std::min(place.w, place.h);
  const Box thumb = i == 0 ? Box{0, place.h / 3, side, 60} : Box{place.w / 3, 0, 80, side};
  const Box bubble = i == 0 ? Box{0, 0, side, kFinger} : Box{0, 0, 36, side};
  c.button(f.lvButtons_H55[i], track, bubble, QStringLiteral("A"), kNeutralButton);
  c.button(f.lvButtons_H5[i], track, thumb, QStringLiteral("Slider"), c.theme.primary, 7);
}

// One of five ways to jump to a letter is shown, so they share the bar at the foot.
void composeJump(Composer& c, Box foot) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[9];
  composeSlider(c, 1, foot.centred(foot.w, c.finger(32)));
  c.buttons(f.lvButtons_H38, 0, screen, Grid(foot, 27, 1, c.px(2)), kQuickKeys, c.theme.key, 8);
  c.button(f.lvButtons_H3[1], screen, foot.centred(c.px(200), foot.h), QStringLiteral("Jump To Letter"),
           c.theme.primary);
}

void composeTabs(Composer& c, Box header) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[9];
  const Grid grid(header, 8, 1, c.px(4));
  c.buttons(f.lvButtons_H4, 0, screen, grid, kTabs, c.theme.tab);
  c.button(f.lvButtons_H4[7], screen, grid.cell(5), QStringLiteral("Filter"), c.theme.tab);
  c.button(f.lvButtons_H4[6], screen, grid.cell(6), QStringLiteral("More"), c.theme.tab);
  c.button(f.lvButtons_H4[5], screen, grid.cell(7), QStringLiteral("SPIN||on THIS"), c.theme.primary);
}

void composeFilter(Composer& c, Box area) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[9];
  c.artwork(f.Picture31[7], screen, area.cutLeft(area.h, c.px(kGap)));
  PictureBox& filter = *f.Picture24;
  const Box place = area.cutLeft(c.px(220), c.px(kMargin));
  c.panel(filter, screen, place, c.theme.row.back);
  c.line(*f.Label54, filter, place.inside().inset(c.px(8), 0), QStringLiteral("Filter on: Genre"),
         {c.theme.row.accent, 10});
  const Grid texts(area, 2, 1, c.px(kGap));
  c.line(*f.Label5, screen, texts.cell(1), QStringLiteral("Current Page: 0/0"),
         {c.theme.screen.body, 10, false, Alignment::Right});
  c.line(f.Label27[2], screen, texts.cell(0), QStringLiteral("Status"),
         {c.theme.screen.muted, 10, false, Alignment::Right});
}

void composePlayingPanel(Composer& c, const Box& place) {
  Form1& f = c.form;
  PictureBox& panel = *f.Picture17;
  c.clearPanel(panel, f.Picture1[8], place);
  Box area = place.inside().inset(c.px(16));
  c.artwork(f.Picture3[2], panel, area.cutBottom(c.px(92), c.px(10)).centred(c.px(92), c.px(92)));
  const Grid rows(area, 1, 3, c.px(4));
  const TextLook looks[] = {{c.theme.card.heading, 16, true, Alignment::Center},
                            {c.theme.card.body, 13, false, Alignment::Center},
                            {c.theme.card.muted, 11, false, Alignment::Center}};
  for (int i = 0; i < 3; ++i) {
    const QString caption = i == 0 ? QStringLiteral("Now Playing ") : QStringLiteral("TEXT EXAMPLE");
    c.line(f.Label7[i], panel, rows.cell(i), caption, looks[i]);
  }
}

// Beside the texts, or above them on an upright screen.
Box cutPlaying(const Composer& c, Box& body) {
  if (body.h <= body.w) return body.cutLeft(body.h, c.px(14));
  const int side = std::min(body.w, body.h * 3 / 5);
  return body.cutTop(side, c.px(14)).centred(side, side);
}

}  // namespace

void composeAlbumView(Composer& c) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[9];
  auto [header, body] = partsOf(c, screen);
  composeTabs(c, header.inset(0, c.px(2)));
  const Box foot = Box(body).cutBottom(c.px(kTouch));
  if (!c.plan.sliderUpright) body.cutBottom(c.px(kTouch), c.px(6));
  composeFilter(c, body.cutTop(c.px(28), c.px(6)));
  c.button(f.lvButtons_H3[0], screen, body.cutLeft(c.px(52), c.px(8)), QStringLiteral("Back"), c.theme.plain);
  c.button(f.lvButtons_H3[2], screen, body.cutRight(c.px(52), c.px(8)), QStringLiteral("Next"),
           c.theme.plain);
  composeCovers(c, coverArea(c), {.columns = 5});
  composeSlider(c, 0, body.cutRight(sliderWidth(c)));
  composeJump(c, foot);
}

void composeNowPlaying(Composer& c) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[8];
  const Ground& on = c.theme.screen;
  auto [header, body] = partsOf(c, screen);
  Box corner = header.inset(0, c.px(2));
  const Box button = corner.cutRight(c.px(110), c.px(kMargin));
  c.button(*f.lvButtons_H21, screen, button, QStringLiteral("Fullscreen"), c.theme.primary);
  header.cutRight(button.w, c.px(kMargin));
  c.clearPanel(f.Picture3[3], screen, header.inset(0, c.px(4)));
  Box next = body.cutBottom(c.px(84), c.px(12));
  c.artwork(f.Picture3[1], screen, next.cutLeft(next.h, c.px(12)));
  c.image(f.aicAlphaImage1[20], screen, next.cutRight(c.px(150), c.px(12)).centred(c.px(150), c.px(30)));
  Box texts = next.centred(next.w, c.px(56));
  c.line(f.Label6[0], screen, texts.cutTop(texts.h / 2), QStringLiteral("TEXT EXAMPLE"),
         {on.heading, 13, true});
  c.line(f.Label6[1], screen, texts, QStringLiteral("TEXT EXAMPLE"), {on.body, 11});
  c.artwork(f.Picture3[0], screen, cutPlaying(c, body));
  composePlayingPanel(c, body);
}

}  // namespace veneerer::design
