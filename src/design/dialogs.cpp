// The small dialogs: pin, playlists, request, licence, collections, confirmation, free credit, and the
// pop-up menu.
#include "design/keyboard.h"
#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kPopup[] = {"History",     "Top 20",      "Search",         "Queue",  "Options",
                                  "Decades",     "Playlist",    "Genres",         "Albums", "Now||Playing",
                                  "My||V-Quill", "Collections", "Request||Track", "Close"};

constexpr const char* kLicence =
    "LICENCE AGREEMENT\n\n"
    "This jukebox is licensed for use in public places. The music that it plays remains the property of its "
    "owners.\n\n"
    "Copying, recording or broadcasting the music without the consent of its owners is not permitted.\n\n"
    "Credits are good for the songs that are chosen on this jukebox. They can't be paid out.";

void composeKeypad(Composer& c, const Box& area) {
  PictureBox& screen = c.form.Picture1[16];
  const Grid grid(area, 3, 4, c.px(5));
  const auto digit = [&](int value, const Box& at) {
    c.button(c.form.lvButtons_H43[value], screen, at, QString::number(value), c.theme.key, 14);
  };
  for (int value = 1; value <= 9; ++value) digit(value, grid.cell(value - 1));
  digit(0, grid.cell(0, 3));
  c.button(c.form.lvButtons_H43[10], screen, grid.span(1, 3, 2), QStringLiteral("ENTER"), c.theme.wideKey,
           11);
}

void composeLoadPlaylist(Composer& c) {
  PictureBox& screen = c.form.Picture1[20];
  Box area = dialogOf(screen).inset(c.px(28), c.px(24));
  const Grid column(area.cutRight(c.px(120), c.px(20)), 1, 3, c.px(16));
  c.buttons(c.form.lvButtons_H52, 0, screen, column, std::to_array<const char*>({"UP", "DOWN", "CANCEL"}),
            c.theme.plain, 12);
  const Grid rows(area, 1, 10, c.px(2));
  for (int i = 0; i < 10; ++i)
    c.line(c.form.Label45[i], screen, rows.cell(i), QStringLiteral("Playlist Name  %1").arg(i),
           {c.theme.screen.body, 13});
}

void composeSavePlaylist(Composer& c) {
  PictureBox& screen = c.form.Picture1[21];
  Box area = dialogOf(screen).inset(c.px(24), c.px(30));
  const TextLook look{c.theme.field.heading, 20, true, Alignment::Center};
  c.field(*c.form.Label46, screen, area.cutTop(c.lineOf(look), c.px(30)), QStringLiteral("FILENAME"), look);
  fullKeyboard(c, c.form.lvButtons_H51, screen, area, "Save");
}

// Two texts that are typed, each on a ground of its own.
void composeTwoFields(Composer& c, Array<Label>& labels, Element& screen, Box& area,
                      std::span<const char* const> captions) {
  const TextLook look{c.theme.field.heading, 16, true, Alignment::Center};
  for (int i = 0; i < 2; ++i)
    c.field(labels[i], screen, area.cutTop(c.lineOf(look), c.px(i == 0 ? 12 : 26)),
            QString::fromLatin1(captions[static_cast<std::size_t>(i)]), look);
}

}  // namespace

void composePin(Composer& c) {
  PictureBox& screen = c.form.Picture1[16];
  Box area = boxOf(screen).inside().inset(c.px(14), c.px(10));
  c.line(c.form.Label38[0], screen, area.cutTop(c.px(24), c.px(4)), QStringLiteral("Enter Pin"),
         {c.theme.screen.heading, 13, true, Alignment::Center});
  const TextLook look{c.theme.field.heading, 16, true, Alignment::Center};
  c.field(c.form.Label38[1], screen, area.cutTop(c.lineOf(look), c.px(10)), QStringLiteral("****"), look);
  composeKeypad(c, area);
}

void composePlaylistDialogs(Composer& c) {
  composeLoadPlaylist(c);
  composeSavePlaylist(c);
}

void composeRequest(Composer& c) {
  PictureBox& screen = c.form.Picture1[23];
  Box area = dialogOf(screen).inset(c.px(24), c.px(24));
  composeTwoFields(c, c.form.Label53, screen, area, std::to_array<const char*>({"Track", "Artist"}));
  fullKeyboard(c, c.form.lvButtons_H56, screen, area, "Send");
}

void composeLogin(Composer& c) {
  PictureBox& screen = c.form.Picture1[24];
  Box area = dialogOf(screen).inset(c.px(24), c.px(24));
  composeTwoFields(c, c.form.Label56, screen, area,
                   std::to_array<const char*>({"Enter User Name", "Enter Password"}));
  fullKeyboard(c, c.form.lvButtons_H58, screen, area, "Login");
}

void composeLicence(Composer& c) {
  PictureBox& screen = c.form.Picture1[26];
  screen.setBackColor(kCardBack);
  screen.setBackStyle(BackStyle::Transparent);
  c.text(c.form.Label27[3], screen, boxOf(screen).inside().inset(24, 20), QString::fromLatin1(kLicence),
         {c.theme.bar.body, 14});
  c.form.Label27[3].setFontSize(14);
}

void composeCollections(Composer& c) {
  PictureBox& screen = c.form.Picture1[27];
  Box area = dialogOf(screen).inset(c.px(24), c.px(22));
  const Grid foot(area.cutBottom(c.px(50), c.px(16)), 3, 1, c.px(12));
  const auto button = [&](int index, int column, const char* caption) {
    c.button(c.form.lvButtons_H61[index], screen, foot.cell(column), QString::fromLatin1(caption),
             c.theme.plain, 12);
  };
  button(1, 0, "<<");
  button(0, 1, "Back");
  button(2, 2, ">>");
  const Grid tiles(area, 3, 3, c.px(14));
  for (int i = 0; i < 9; ++i) c.artwork(c.form.Picture30[i], screen, tiles.cell(i));
}

void composeConfirmation(Composer& c) {
  PictureBox& screen = c.form.Picture1[28];
  const Box inside = boxOf(screen).inside();
  Box area = inside.centred(inside.w - 2 * c.px(kMargin), c.px(110));
  c.line(c.form.Label38[2], screen, area.cutTop(c.px(56)), QStringLiteral("Added To Queue, Thanks"),
         {c.theme.screen.heading, 24, true, Alignment::Center});
  c.line(c.form.Label38[3], screen, area, QStringLiteral("Artist - Track"),
         {c.theme.screen.accent, 16, false, Alignment::Center});
}

void composeFreeCredit(Composer& c) {
  PictureBox& screen = c.form.Picture1[29];
  Box area = dialogOf(screen).inset(c.px(40), c.px(36));
  c.line(c.form.Label38[4], screen, area.cutTop(c.px(48)), QStringLiteral("Try Your Luck"),
         {c.theme.screen.heading, 24, true, Alignment::Center});
  c.line(c.form.Label38[5], screen, area.cutTop(c.px(36), c.px(20)), QStringLiteral("Pick A Box"),
         {c.theme.screen.accent, 16, false, Alignment::Center});
  c.button(c.form.lvButtons_H57[5], screen, area.centred(c.px(240), c.px(240)), QStringLiteral("?"),
           c.theme.primary, 48);
}

void composePopup(Composer& c) {
  PictureBox& panel = *c.form.Picture23;
  const int columns = c.plan.popupColumns;
  const Grid grid(c.plan.popup.inside().inset(c.px(8)), columns, 14 / columns, c.px(6));
  c.buttons(c.form.lvButtons_H54, 0, panel, grid, kPopup, c.theme.menu);
}

}  // namespace veneerer::design
