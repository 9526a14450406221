// The frame: logo, menu, player and status bar, and the panel that shows on the main screen alone.
#include "canvas/design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kMenu[] = {
    "History", "Search", "Queue",        "Top 20",      "Options",     "Decades",        "Playlist",
    "Genres",  "Albums", "Now||Playing", "My||V-Quill", "Collections", "Request||Track", "Pop Up||Menu"};
constexpr const char* kTransport[] = {"<<", "l l", ">>"};

void composeMenu(Composer& c) {
  PictureBox& menu = c.form.Picture2[0];
  c.panel(menu, c.form, c.plan.menu, c.theme.bar.back);
  const int columns = c.plan.menuColumns;
  const Grid grid(c.plan.menu.inside().inset(c.px(4)), columns, 14 / columns, c.px(4));
  c.buttons(c.form.lvButtons_H1, 0, menu, grid, kMenu, c.theme.menu);
}

void composeTransport(Composer& c, const Box& area) {
  PictureBox& player = c.form.Picture2[1];
  Box rest = area;
  const Box transport = rest.cutLeft(3 * c.px(54) + 2 * c.px(6), c.px(10));
  c.buttons(c.form.lvButtons_H2, 0, player, Grid(transport, 3, 1, c.px(6)), kTransport, c.theme.transport,
            12);
  // The volume is a slider or a pair of buttons, by the player's style, and both take the same place.
  c.panel(*c.form.Picture6, player, rest.centred(rest.w, c.px(22)), c.theme.track);
  const Grid pair(rest, 2, 1, c.px(6));
  c.button(c.form.lvButtons_H2[3], player, pair.cell(0), QStringLiteral("Vol -"), c.theme.plain);
  c.button(c.form.lvButtons_H2[4], player, pair.cell(1), QStringLiteral("Vol +"), c.theme.plain);
}

void composePlayerTexts(Composer& c, Box area) {
  const Ground& on = c.theme.bar;
  Form1& f = c.form;
  const TextLook small{on.muted, 8};
  Box top = area.cutTop(c.px(26));
  c.line(f.Label4[4], f, top.cutRight(c.px(90), c.px(6)), QStringLiteral("Message"),
         {on.accent, 9, false, Alignment::Right});
  c.line(f.Label4[0], f, top, QStringLiteral("Track Title"), {on.heading, 12, true});
  c.line(f.Label4[1], f, area.cutTop(c.px(20)), QStringLiteral("Artist Name"), {on.body, 10});
  c.line(f.Label4[2], f, area.cutLeft(c.px(62), c.px(6)), QStringLiteral("Total Time"), small);
  c.line(f.Label4[3], f, area.cutRight(c.px(90), c.px(6)), QStringLiteral("Reamining Time"),
         {on.muted, 8, false, Alignment::Right});
  c.panel(*f.Picture18, f, area.centred(area.w, c.px(8)), c.theme.track);
}

void composePlayer(Composer& c) {
  PictureBox& player = c.form.Picture2[1];
  c.panel(player, c.form, c.plan.player, c.theme.bar.back);
  Box area = c.plan.player.inside().inset(c.px(10), c.px(8));
  Box buttons = area.cutRight(c.px(296), c.px(14));
  const Box popup = buttons.cutRight(c.px(54), c.px(6));
  composeTransport(c, buttons.centred(buttons.w, c.px(52)));
  c.button(c.form.lvButtons_H2[5], player, popup.centred(popup.w, c.px(52)), QStringLiteral("Hide"),
           c.theme.plain);
  composePlayerTexts(c, area.moved(c.plan.player.x, c.plan.player.y));
}

void composeStatusTexts(Composer& c, Box area) {
  const Ground& on = c.theme.bar;
  Form1& f = c.form;
  Box credits = area.cutLeft(c.px(112), c.px(8));
  c.line(f.Label27[0], f, credits.cutTop(credits.h / 2), QStringLiteral("Credits: 0"),
         {on.heading, 10, true});
  c.line(f.Label27[1], f, credits, QStringLiteral("#Jukebox ID"), {on.muted, 9});
  Box state = area.cutLeft(c.px(112), c.px(8));
  c.line(*f.Label41, f, state.cutTop(state.h / 2), QStringLiteral("PAUSED"), {on.accent, 10, true});
  c.line(*f.Label55, f, state, QStringLiteral("Current Page: 0/0"), {on.muted, 9});
}

void composeStatus(Composer& c) {
  Form1& f = c.form;
  c.panel(f.Picture2[3], f, c.plan.status, c.theme.bar.back);
  Box area = c.plan.status.inset(c.px(10), c.px(4));
  composeStatusTexts(c, area);
  area.cutLeft(2 * c.px(120));
  const auto next = [&](int index, const char* caption, const ButtonLook& look) {
    const Box at = area.cutRight(c.px(72), c.px(6));
    c.button(f.lvButtons_H57[index], f, at, QString::fromLatin1(caption), look);
  };
  next(4, "Free||Credits?", c.theme.primary);
  next(3, "POP-UP||Player", c.theme.plain);
  next(2, "Forward", c.theme.plain);
  next(1, "Jump To||Letter", c.theme.plain);
  next(0, "Back", c.theme.plain);
}

// What is seen where no screen stands.
void composeStage(Composer& c) {
  Form1& f = c.form;
  c.panel(f.Picture2[12], f, c.plan.stage, c.theme.screen.back);
  Box area = c.plan.stage.inset(c.px(20));
  const Box banner = area.cutBottom(c.px(64));
  c.panel(f.Picture2[13], f, banner, kCard.back);
  c.line(f.Label4[5], f, banner.inset(c.px(14), 0), QStringLiteral("Touch an album to hear it"),
         {kCard.heading, 14, true, Alignment::Center});
  area.cutBottom(c.px(12));
  const Grid tiles(area, 2, 2, c.px(12));
  for (int i = 0; i < 4; ++i) c.panel(f.Picture2[4 + i], f, tiles.cell(i), kCard.back);
  c.line(f.Label27[5], f, c.plan.logo.inset(c.px(8), c.px(4)), QStringLiteral("#Jukebox Name"),
         {c.theme.bar.heading, 12, true, Alignment::Center});
}

// Kept on the frame by the jukebox; nothing of a Skin shows in them.
void composeHidden(Composer& c) {
  Form1& f = c.form;
  const Box corner{c.plan.stage.x + c.px(20), c.plan.stage.y + c.px(20), c.px(48), c.px(48)};
  for (Element* element : {static_cast<Element*>(&*f.Picture21), static_cast<Element*>(&*f.Picture22),
                           static_cast<Element*>(&*f.Image1)}) {
    element->setContainer(f);
    element->setVisible(false);
    put(*element, corner);
  }
  f.Picture21->setBackColor(kCard.back);
  f.Picture22->setBackColor(kCard.back);
}

}  // namespace

void composeFrame(Composer& c) {
  // The window's own frame adds to what a Skin shows: 4 pixels across, 500 twips down.
  c.form.place(0, 0, static_cast<float>((c.plan.width + 4) * kTwipsPerPixel),
               static_cast<float>(c.plan.height * kTwipsPerPixel + 500));
  c.form.setBackColor(c.theme.screen.back);
  c.panel(c.form.Picture2[2], c.form, c.plan.logo, c.theme.bar.back);
  composeMenu(c);
  composePlayer(c);
  composeStatus(c);
  composeStage(c);
  composeHidden(c);
}

}  // namespace veneerer::design
