// The frame: logo, menu, player and status bar, and the panel that shows on the main screen alone.
#include "design/screens.h"
#include "forms/windowframe.h"

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
  c.buttons(c.form.lvButtons_H1, 0, menu, grid, kMenu, c.theme.menu, 9);
}

// The volume is a slider or a pair of buttons, by the player's style, and both take the same place.
void composeVolume(Composer& c, const Box& area) {
  PictureBox& player = c.form.Picture2[1];
  c.panel(*c.form.Picture6, player, area.centred(area.w, c.px(22)), c.theme.track);
  const Grid pair(area, 2, 1, c.px(6));
  c.button(c.form.lvButtons_H2[3], player, pair.cell(0), QStringLiteral("Vol -"), c.theme.plain);
  c.button(c.form.lvButtons_H2[4], player, pair.cell(1), QStringLiteral("Vol +"), c.theme.plain);
}

// Cuts the buttons of the player off the right end of its panel.
void composePlayerButtons(Composer& c, Box& panel) {
  PictureBox& player = c.form.Picture2[1];
  const int height = c.px(48);
  const Box volume = panel.cutRight(c.px(108), c.px(10));
  const Box transport = panel.cutRight(3 * c.px(52) + 2 * c.px(6), c.px(8));
  const Box hide = panel.cutRight(c.px(48), c.px(12));
  composeVolume(c, volume.centred(volume.w, height));
  c.buttons(c.form.lvButtons_H2, 0, player, Grid(transport.centred(transport.w, height), 3, 1, c.px(6)),
            kTransport, c.theme.transport, 12);
  c.button(c.form.lvButtons_H2[5], player, hide.centred(hide.w, height), QStringLiteral("Hide"),
           c.theme.plain);
}

void composePlayerTexts(Composer& c, Box area) {
  const Ground& on = c.theme.bar;
  Form1& f = c.form;
  c.line(f.Label4[0], f, area.cutTop(area.h * 2 / 5), QStringLiteral("Track Title"), {on.heading, 12, true});
  c.line(f.Label4[1], f, area.cutTop(area.h / 2), QStringLiteral("Artist Name"), {on.body, 10});
  c.line(f.Label4[2], f, area.cutLeft(c.px(60), c.px(6)), QStringLiteral("Total Time"), {on.muted, 8});
  c.line(f.Label4[3], f, area.cutRight(c.px(88), c.px(6)), QStringLiteral("Reamining Time"),
         {on.muted, 8, false, Alignment::Right});
  c.panel(*f.Picture18, f, area.centred(area.w, c.px(8)), c.theme.track);
}

void composePlayer(Composer& c) {
  PictureBox& player = c.form.Picture2[1];
  c.panel(player, c.form, c.plan.player, c.theme.bar.back);
  Box area = c.plan.player.inside().inset(c.px(10), 0);
  composePlayerButtons(c, area);
  area = area.centred(area.w, c.px(66));
  composePlayerTexts(c, area.moved(c.plan.player.x, c.plan.player.y));
}

// A text of the status bar on a small panel of its own.
struct Chip {
  PictureBox& panel;
  Label& label;
  const char* caption;
  Colour ink;
  bool bold;
};

void composeStatusTexts(Composer& c, const Box& area) {
  Form1& f = c.form;
  const Chip chips[] = {{f.Picture2[4], f.Label27[0], "Credits: 0", c.theme.bar.heading, true},
                        {f.Picture2[5], f.Label27[1], "#Jukebox ID", c.theme.bar.muted, false},
                        {f.Picture2[6], *f.Label41, "PAUSED", c.theme.bar.accent, true},
                        {f.Picture2[7], f.Label4[4], "Message", c.theme.bar.body, false}};
  const Grid grid(area, 2, 2, c.px(6), c.px(4));
  for (int i = 0; i < 4; ++i) {
    const Chip& chip = chips[i];
    c.clearPanel(chip.panel, f, grid.cell(i));
    c.line(chip.label, f, grid.cell(i).inset(c.px(2), 0), QString::fromLatin1(chip.caption),
           {chip.ink, 9, chip.bold, Alignment::Center});
  }
}

void composeStatus(Composer& c) {
  Form1& f = c.form;
  c.clearPanel(f.Picture2[3], f, c.plan.status);
  Box area = c.plan.status.inset(c.px(10), c.px(4));
  const auto next = [&](int index, const char* caption, const ButtonLook& look) {
    const Box at = area.cutRight(c.px(67), c.px(3));
    c.button(f.lvButtons_H57[index], f, at, QString::fromLatin1(caption), look, 8);
  };
  next(4, "Free||Credits?", c.theme.primary);
  next(3, "POP-UP||Player", c.theme.plain);
  next(2, "Forward", c.theme.plain);
  next(0, "Back", c.theme.plain);
  next(1, "Jump To||Letter", c.theme.plain);
  composeStatusTexts(c, area.cutLeft(c.px(172), c.px(5)));
  c.line(*f.Label55, f, area, QStringLiteral("Current Page: 0/0"),
         {c.theme.bar.body, 8, false, Alignment::Right});
}

// What is seen where no screen stands.
void composeStage(Composer& c) {
  Form1& f = c.form;
  c.panel(f.Picture2[12], f, c.plan.stage, c.theme.screen.back);
  const Box& stage = c.plan.stage;
  const Box banner =
      Box{stage.x, stage.y + stage.h * 18 / 25, stage.w, c.px(64)}.centred(c.px(420), c.px(64));
  c.clearPanel(f.Picture2[13], f, banner);
  c.line(f.Label4[5], f, banner.inset(c.px(14), 0), QStringLiteral("Touch an album to hear it"),
         {c.theme.bar.heading, 14, true, Alignment::Center});
  c.line(f.Label27[5], f, c.plan.name, QStringLiteral("#Jukebox Name"),
         {c.theme.bar.heading, c.plan.namePoints, true, Alignment::Center});
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
  f.Picture21->setBackColor(kCardBack);
  f.Picture22->setBackColor(kCardBack);
}

}  // namespace

void composeFrame(Composer& c) {
  c.form.place(0, 0, static_cast<float>((c.plan.width + kFramePixels) * kTwipsPerPixel),
               static_cast<float>(c.plan.height * kTwipsPerPixel) + kFrameTwips);
  c.form.setBackColor(c.theme.screen.back);
  c.panel(c.form.Picture2[2], c.form, c.plan.logo, c.theme.bar.back);
  composeMenu(c);
  composePlayer(c);
  composeStatus(c);
  composeStage(c);
  composeHidden(c);
}

}  // namespace veneerer::design
