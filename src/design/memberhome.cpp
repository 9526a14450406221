// The home screen of a member: three shelves of suggestions, the account, and a keyboard for what it asks.
#include "design/keyboard.h"
#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kShelves[] = {"Show More||By Artist", "Show More||By Year", "Show More||By Genre"};
constexpr const char* kAccount[] = {"My Playlists", "My Top 10", "My Requests", "Edit Account",
                                    "Add Credits",  "Log Out",   "Back"};
constexpr int kLinesOnShelf = 4;
constexpr int kTitleWidth = 180;

// A picture, four lines beside it, and the button that shows more of the same.
void composeShelf(Composer& c, Box area, int shelf) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[25];
  const Ground& on = c.theme.screen;
  c.button(f.lvButtons_H60[shelf], screen, area.cutBottom(c.finger(38), c.px(4)),
           QString::fromLatin1(kShelves[shelf]), c.theme.primary, 8);
  c.artwork(f.Picture25[shelf], screen, cutPicture(area, c.px(6)));
  const Grid lines(area, 1, kLinesOnShelf, 0);
  for (int i = 0; i < kLinesOnShelf; ++i)
    c.line(f.Label58[kLinesOnShelf * shelf + i], screen, lines.cell(i),
           i == 0 ? QStringLiteral("Artist Name") : QStringLiteral("Album  %1").arg(i),
           {i == 0 ? on.heading : on.body, 9, i == 0});
}

void composeAccount(Composer& c, Box area) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[25];
  const Ground& on = c.theme.screen;
  c.buttons(f.lvButtons_H60, 3, screen, Grid(area.cutBottom(c.finger(36), c.px(6)), 7, 1, c.px(4)), kAccount,
            c.theme.plain, 8);
  c.artwork(f.Picture25[4], screen, area.cutLeft(area.h, c.px(8)));
  c.button(f.lvButtons_H60[54], screen, area.cutRight(c.px(96), c.px(8)), QStringLiteral("Change||Picture"),
           c.theme.plain, 8);
  constexpr const char* kTexts[] = {"Credits: 0", "Songs Played: 0",
                                    "Member Since:", "Date Of Birth:", "Email Address:"};
  const Grid lines(area, 3, 2, c.px(6), 0);
  for (int i = 0; i < 5; ++i)
    c.line(f.Label58[12 + i], screen, lines.cell(i), QString::fromLatin1(kTexts[i]), {on.body, 9});
}

void composeKeys(Composer& c, const Box& place) {
  Form1& f = c.form;
  PictureBox& panel = f.Picture25[3];
  c.clearPanel(panel, f.Picture1[25], place);
  Box area = place.inside().inset(c.px(8), c.px(6));
  const Grid prompts(area.cutTop(c.px(20), c.px(2)), 2, 1, c.px(8));
  c.line(f.Label58[17], panel, prompts.cell(0), QStringLiteral("Enter D.O.B."),
         {c.theme.screen.heading, 10, true});
  c.line(f.Label58[18], panel, prompts.cell(1), QStringLiteral("Enter Email Address"),
         {c.theme.screen.heading, 10, true});
  Keyboard keyboard(c, f.lvButtons_H60, panel, area, 5);
  keyboard.digits(f.lvButtons_H60, 36, 0);
  keyboard.letters(10, 1);
  constexpr WordKey kWords[] = {{51, 3, 17, 3, "Delete"}, {53, 4, 0, 3, "Cancel"}, {46, 4, 3, 2, "@"},
                                {48, 4, 5, 2, "-"},       {50, 4, 7, 6, "Space"},  {49, 4, 13, 2, "_"},
                                {47, 4, 15, 2, "."},      {52, 4, 17, 3, "Done"}};
  keyboard.words(kWords);
}

int keysHeight(const Composer& c) {
  return std::max(c.px(244), 5 * kFinger + 4 * c.px(4) + 2 * c.px(6) + c.px(22));
}

}  // namespace

void composeMemberHome(Composer& c) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[25];
  Box area = boxOf(screen).inside().inset(c.px(16), 0);
  Box header = area.cutTop(std::max(c.px(kHeaderHeight), kHeaderHeight), c.px(8));
  header.cutLeft(kTitleWidth);
  area.cutBottom(c.px(8));
  // No record holds this one, so it keeps to the corner where it fits on every screen.
  c.text(*f.Label57, screen, {16, 12, kTitleWidth, lineHeight(14)}, QStringLiteral("My V-Quill"),
         {c.theme.header.heading, 14, true});
  f.Label57->setFontSize(14);
  c.line(f.Label27[4], screen, header, QStringLiteral("Credits: 0"),
         {c.theme.header.accent, 11, true, Alignment::Right});
  composeKeys(c, area.cutBottom(keysHeight(c), c.px(6)));
  composeAccount(c, area.cutBottom(c.finger(40) + c.finger(36) + c.px(6), c.px(6)));
  const Grid shelves(area, 3, 1, c.px(12));
  for (int i = 0; i < 3; ++i) composeShelf(c, shelves.cell(i), i);
}

}  // namespace veneerer::design
