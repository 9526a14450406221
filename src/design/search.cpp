// The search screens: keyboard, results, choice, nothing found, and the letters to jump to.
#include "design/keyboard.h"
#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kSearchBy[] = {"Search||By Artist", "Search||By Title", "Search||By Album",
                                     "Search||By Genre"};
constexpr const char* kResultActions[] = {"New||Search", "Add All||To Queue", "Add To||Queue", "Play NEXT",
                                          "Play NOW"};
constexpr const char* kResultMoves[] = {"Up", "Down", "Search||More", "Request||Track", "Sort By||Artist"};
constexpr const char* kSearchTabs[] = {"Audio", "Video", "Karaoke"};
constexpr const char* kLetters[] = {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M",
                                    "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z"};

// The places of what no record brings back: the same on a screen of any size.
constexpr Box kClearPlace{10, 2, 76, 44};
constexpr Box kAllTabPlace{10, 2, 76, 44};
constexpr int kFixedColumn = 84;
constexpr int kSearchedLine = 27;  // its text has one size, 16 points

void composeQuickResults(Composer& c, const Box& area) {
  PictureBox& screen = c.form.Picture1[3];
  const Ground& on = c.theme.screen;
  const Grid grid(area, 4, 3, c.px(8));
  for (int i = 0; i < 12; ++i) {
    Box cell = grid.cell(i);
    c.artwork(c.form.Picture27[i], screen, cutPicture(cell, c.px(6)));
    const char* caption = i < 4 ? "Quick Artist" : "Quick Album";
    c.text(c.form.Label19[i], screen, cell, QStringLiteral("%1  %2").arg(QString::fromLatin1(caption)).arg(i),
           {i < 4 ? on.heading : on.body, 9, i < 4});
  }
}

void composeSearchKeys(Composer& c, const Box& area) {
  PictureBox& screen = c.form.Picture1[3];
  Keyboard keyboard(c, c.form.lvButtons_H6, screen, area, 4);
  keyboard.digits(c.form.lvButtons_H36, 0, 0);
  keyboard.letters(0, 1);
  constexpr WordKey kWords[] = {{26, 3, 0, 3, "Space"}, {27, 3, 17, 3, "Delete"}};
  keyboard.words(kWords);
}

void composeResultRow(Composer& c, const Box& row, int i) {
  PictureBox& screen = c.form.Picture1[11];
  const Ground& on = c.theme.row;
  c.panel(c.form.Picture7[i], screen, row, on.back);
  Box inner = row.inset(c.px(4));
  c.artwork(c.form.Picture31[i], screen, cutPicture(inner, c.px(10)));
  Box right = inner.cutRight(c.px(150), c.px(8));
  const int half = inner.h / 2;
  c.line(c.form.Label14[i], screen, inner.cutTop(half), QStringLiteral("Artist  %1").arg(i),
         {on.heading, 10, true});
  c.line(c.form.Label16[i], screen, inner, QStringLiteral("TRACK"), {on.body, 9});
  c.line(c.form.Label16[7 + i], screen, right.cutTop(half), QStringLiteral("ALBUM"), {on.body, 9});
  Box times = right;
  c.line(c.form.Label17[i], screen, times.cutRight(c.px(60), c.px(6)), QStringLiteral("Time  %1").arg(i),
         {on.muted, 9, false, Alignment::Right});
  c.line(c.form.Label15[i], screen, times, QStringLiteral("Genre  %1").arg(i), {on.muted, 9});
}

void composeInternetTracks(Composer& c, const Box& place) {
  PictureBox& panel = *c.form.Picture29;
  c.clearPanel(panel, c.form.Picture1[22], place);
  Box area = place.inside().inset(c.px(12));
  const Grid arrows(area.cutRight(c.px(92), c.px(12)), 1, 2, c.px(kGap));
  c.button(c.form.lvButtons_H53[3], panel, arrows.cell(0), QStringLiteral("UP"), c.theme.plain);
  c.button(c.form.lvButtons_H53[4], panel, arrows.cell(1), QStringLiteral("Down"), c.theme.plain);
  const Grid rows(area, 1, 5, c.px(4));
  for (int i = 0; i < 5; ++i)
    c.line(c.form.Label51[2 + i], panel, rows.cell(i), QStringLiteral("Internet Track 0%1").arg(i + 1),
           {c.theme.card.body, 11});
}

}  // namespace

void composeSearch(Composer& c) {
  PictureBox& screen = c.form.Picture1[3];
  auto [header, body] = partsOf(c, screen);
  header.cutLeft(kFixedColumn);
  const Box back = header.cutRight(c.px(84), c.px(kMargin)).inset(0, c.px(2));
  c.button(*c.form.lvButtons_H9, screen, back, QStringLiteral("Back"), c.theme.plain);
  c.button(*c.form.lvButtons_H20, screen, kClearPlace, QStringLiteral("Clear"), kNeutralButton);
  c.line(*c.form.Label52, screen, header.cutRight(c.px(150), c.px(kMargin)), QStringLiteral("Intelli Search"),
         {c.theme.header.accent, 11, false, Alignment::Right});
  c.line(*c.form.Label39, screen, header, QStringLiteral("Searching In ...."),
         {c.theme.header.heading, 16, true});
  const Box keys = body.cutBottom(c.px(196), c.px(8));
  const TextLook searched{c.theme.field.heading, 16, true, Alignment::Center};
  c.field(*c.form.Label32, screen, body.cutTop(std::max(c.lineOf(searched), kSearchedLine), c.px(8)),
          QStringLiteral("TEXT EXAMPLE"), searched);
  composeQuickResults(c, body);
  Box left = keys;
  const Grid actions(left.cutRight(c.px(116), c.px(kMargin)), 1, 4, c.px(4));
  c.buttons(c.form.lvButtons_H7, 0, screen, actions, kSearchBy, c.theme.primary);
  composeSearchKeys(c, left);
}

void composeSearchResults(Composer& c) {
  PictureBox& screen = c.form.Picture1[11];
  auto [header, body] = partsOf(c, screen);
  header.cutLeft(kFixedColumn);
  c.button(c.form.lvButtons_H42[3], screen, kAllTabPlace, QStringLiteral("All"), kNeutralButton);
  Box tabs = header.inset(0, c.px(2)).cutLeft(3 * c.px(84) + 2 * c.px(kGap));
  c.buttons(c.form.lvButtons_H42, 0, screen, Grid(tabs, 3, 1, c.px(kGap)), kSearchTabs, c.theme.tab);
  header.cutLeft(tabs.w, c.px(kMargin));
  c.line(*c.form.Label18, screen, header, QStringLiteral("Songs Found"),
         {c.theme.header.heading, 14, true, Alignment::Right});
  const Grid column(body.cutRight(c.px(104), c.px(kMargin)), 1, 6, c.px(kGap));
  c.buttons(c.form.lvButtons_H28, 0, screen, column, kResultMoves, c.theme.plain);
  c.button(*c.form.lvButtons_H27, screen, column.cell(5), QStringLiteral("BACK"), c.theme.plain);
  c.buttons(c.form.lvButtons_H26, 0, screen, Grid(body.cutBottom(c.px(kTouch), c.px(6)), 5, 1, c.px(kGap)),
            kResultActions, c.theme.primary);
  const Grid rows(body, 1, 7, c.px(4));
  for (int i = 0; i < 7; ++i) composeResultRow(c, rows.cell(i), i);
}

void composeSearchChoice(Composer& c) {
  PictureBox& screen = c.form.Picture1[14];
  Box area = dialogOf(screen).inset(c.px(40), c.px(28));
  c.clearPanel(c.form.Picture2[11], screen, area.cutTop(c.px(96), c.px(24)));
  const Box cancel = area.cutBottom(c.px(56), c.px(24));
  const Grid choices(area, 1, 3, c.px(14));
  c.buttons(c.form.lvButtons_H25, 0, screen, choices,
            std::to_array<const char*>({"TRACK", "ARTIST", "ALBUM"}), c.theme.primary, 14);
  c.button(*c.form.lvButtons_H14, screen, cancel.centred(c.px(200), cancel.h), QStringLiteral("CANCEL"),
           c.theme.plain, 11);
}

void composeNoSearchResults(Composer& c) {
  PictureBox& screen = c.form.Picture1[22];
  const Ground& on = c.theme.screen;
  Box area = dialogOf(screen).inset(c.px(28), c.px(20));
  c.line(c.form.Label51[0], screen, area.cutTop(c.px(34)), QStringLiteral("Search Term in Title"),
         {on.heading, 16, true, Alignment::Center});
  c.line(c.form.Label51[1], screen, area.cutTop(c.px(28), c.px(10)), QStringLiteral("Was Not Found In AUDIO"),
         {on.accent, 12, false, Alignment::Center});
  const Grid footer(area.cutBottom(c.px(54), c.px(12)), 3, 1, c.px(10));
  c.buttons(c.form.lvButtons_H53, 0, screen, footer,
            std::to_array<const char*>({"New Search", "Request Item", "Back"}), c.theme.plain);
  const Grid elsewhere(area.cutBottom(c.px(48), c.px(12)), 4, 1, c.px(10));
  c.buttons(c.form.lvButtons_H53, 5, screen, elsewhere,
            std::to_array<const char*>({"In Video", "In Karaoke", "In Albums", "On Internet"}),
            c.theme.primary);
  composeInternetTracks(c, area);
}

void composeJumpToLetter(Composer& c) {
  PictureBox& screen = c.form.Picture1[12];
  const Box area = dialogOf(screen).inset(c.px(18));
  const Grid grid = area.h > area.w ? Grid(area, 4, 7, c.px(8)) : Grid(area, 7, 4, c.px(8));
  c.buttons(c.form.lvButtons_H22, 0, screen, grid, kLetters, c.theme.key, 18);
  c.button(c.form.lvButtons_H23[0], screen, grid.cell(26), QStringLiteral("Jump To||Start"), c.theme.wideKey);
  c.button(c.form.lvButtons_H23[1], screen, grid.cell(27), QStringLiteral("Done"), c.theme.wideKey);
}

}  // namespace veneerer::design
