// The listing screens: history, chart, queue and playlist. Each has a title, rows of one height, and a column
// of buttons at the right.
#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kHistoryButtons[] = {"Back",       "Random||Songs",  "Selected||Songs",
                                           "All||Songs", "Clear||History", "Up",
                                           "Down",       "Add To||Queue"};
constexpr const char* kChartButtons[] = {"Add To||Queue", "Play NEXT", "Play NOW"};
constexpr const char* kQueueButtons[] = {"Move Up",   "Move Down", "Remove||Song", "Play NOW",
                                         "Play NEXT", "Shuffle",   "Clear||Queue", "Back"};
constexpr const char* kPlaylistButtons[] = {
    "Up", "Down", "Add ALL||To Queue", "Add To||Queue", "Load||Playlist", "Save||Playlist", "Remove||Song"};

constexpr int kButtonColumn = 116;

// The right column of a listing, cut off its body.
Box buttonColumn(const Composer& c, Box& body) {
  return body.cutRight(c.px(kButtonColumn), c.px(kMargin));
}

void composeHistoryRow(Composer& c, const Box& row, int i) {
  PictureBox& screen = c.form.Picture1[1];
  const Ground& on = c.theme.row;
  c.panel(c.form.Picture5[i], screen, row, on.back);
  Box inner = row.inset(c.px(8), c.px(3));
  c.line(c.form.Label11[i], screen, inner.cutLeft(c.px(30), c.px(4)), QStringLiteral(" %1.").arg(i),
         {on.accent, 12, true});
  Box right = inner.cutRight(c.px(124), c.px(8));
  const QString number = QString::number(i);
  c.line(c.form.Label47[i], screen, inner.cutTop(inner.h / 2), QStringLiteral("Track: ") + number + u'.',
         {on.heading, 10, true});
  c.line(c.form.Label48[i], screen, inner, QStringLiteral("Artist: ") + number + u'.', {on.body, 9});
  c.line(c.form.Label49[i], screen, right.cutTop(right.h / 2), QStringLiteral("Played On: ") + number + u'.',
         {on.muted, 9, false, Alignment::Right});
  c.line(c.form.Label50[i], screen, right, QStringLiteral("Played () Times ") + number + u'.',
         {on.muted, 9, false, Alignment::Right});
}

void composeChartRow(Composer& c, const Box& row, int i) {
  PictureBox& screen = c.form.Picture1[2];
  const Ground& on = c.theme.row;
  c.panel(c.form.Picture11[i], screen, row, on.back);
  Box inner = row.inset(c.px(8), c.px(2));
  c.line(c.form.Label8[i], screen, inner.cutLeft(c.px(34), c.px(4)), QStringLiteral(" %1.").arg(i),
         {on.accent, 12, true});
  c.line(c.form.Label37[i], screen, inner.cutRight(c.px(60), c.px(6)), QStringLiteral("Time  %1").arg(i),
         {on.muted, 10, false, Alignment::Right});
  const Grid halves(inner, 2, 1, c.px(8));
  c.line(c.form.Label36[i], screen, halves.cell(0), QStringLiteral("Track  %1").arg(i),
         {on.heading, 10, true});
  c.line(c.form.Label35[i], screen, halves.cell(1), QStringLiteral("Artist  %1").arg(i), {on.body, 10});
}

void composeNextSong(Composer& c, Box area) {
  PictureBox& screen = c.form.Picture1[4];
  const Ground& on = c.theme.screen;
  c.line(c.form.Label22[0], screen, area.cutTop(c.px(22)), QStringLiteral("Next Song..."),
         {on.accent, 11, true});
  constexpr const char* kDetails[] = {"Track Title", "Artist Name", "Album Name", "Total Time"};
  const Grid grid(area, 2, 2, c.px(8), 0);
  for (int i = 0; i < 4; ++i)
    c.line(c.form.Label21[i], screen, grid.cell(i), QString::fromLatin1(kDetails[i]),
           {i == 0 ? on.heading : on.body, 10, i == 0});
}

void composeQueueRow(Composer& c, Box row, int i) {
  PictureBox& screen = c.form.Picture1[4];
  const Ground& on = c.theme.screen;
  c.artwork(c.form.Picture10[i], screen, cutPicture(row, c.px(10)));
  Box right = row.cutRight(c.px(124), c.px(8));
  const int third = row.h / 3;
  c.line(c.form.Label23[i], screen, row.cutTop(third), QStringLiteral("Track  %1").arg(i),
         {on.heading, 10, true});
  c.line(c.form.Label24[i], screen, row.cutTop(third), QStringLiteral("Artist  %1").arg(i), {on.body, 9});
  c.line(c.form.Label25[i], screen, row, QStringLiteral("Album  %1").arg(i), {on.muted, 9});
  c.line(c.form.Label26[i], screen, right.cutTop(third), QStringLiteral("Time  %1").arg(i),
         {on.body, 9, false, Alignment::Right});
  right.cutTop(third);
  c.line(c.form.Label61[i], screen, right, QStringLiteral("Added By: %1").arg(i),
         {on.muted, 9, false, Alignment::Right});
}

// Members 7 and 8 share one place and one look: the record of the second is read into the first, so
// this is where it ends in every Skin, whatever its own record said.
void composeDeletePlaylist(Composer& c, PictureBox& screen) {
  constexpr Box kPlace{10, 2, 104, 44};
  for (int i : {8, 7})
    c.button(c.form.lvButtons_H49[i], screen, kPlace, QStringLiteral("Delete||Playlist"), kDangerButton);
  c.form.lvButtons_H49[8].setVisible(false);
}

}  // namespace

void composeHistory(Composer& c) {
  PictureBox& screen = c.form.Picture1[1];
  auto [header, body] = partsOf(c, screen);
  c.line(*c.form.Label12, screen, header, QStringLiteral("Songs In History"),
         {c.theme.header.heading, 16, true});
  c.buttons(c.form.lvButtons_H24, 0, screen, Grid(buttonColumn(c, body), 1, 8, c.px(kGap)), kHistoryButtons,
            c.theme.plain);
  const Grid rows(body, 1, 9, c.px(4));
  for (int i = 0; i < 9; ++i) composeHistoryRow(c, rows.cell(i), i);
}

void composeTop20(Composer& c) {
  PictureBox& screen = c.form.Picture1[2];
  auto [header, body] = partsOf(c, screen);
  Box tabs = header.inset(0, c.px(2)).cutRight(2 * c.px(110) + c.px(kGap), c.px(kMargin));
  header.cutRight(tabs.w, c.px(kMargin));
  c.clearPanel(c.form.Picture2[8], screen, header.inset(0, c.px(4)));
  const Grid tabGrid(tabs, 2, 1, c.px(kGap));
  c.button(c.form.lvButtons_H59[0], screen, tabGrid.cell(0), QStringLiteral("All"), c.theme.tab);
  c.button(c.form.lvButtons_H59[1], screen, tabGrid.cell(1), QStringLiteral("My Top 10"), c.theme.tab);

  const Grid column(buttonColumn(c, body), 1, 6, c.px(kGap));
  c.button(c.form.lvButtons_H13[1], screen, column.cell(0), QStringLiteral("Up"), c.theme.plain);
  c.button(c.form.lvButtons_H13[0], screen, column.cell(1), QStringLiteral("Down"), c.theme.plain);
  for (int i = 0; i < 3; ++i)
    c.button(c.form.lvButtons_H29[i], screen, column.cell(2 + i), QString::fromLatin1(kChartButtons[i]),
             c.theme.primary);
  c.button(*c.form.lvButtons_H19, screen, column.cell(5), QStringLiteral("BACK"), c.theme.plain);

  const Grid rows(body, 1, 10, c.px(4));
  for (int i = 0; i < 10; ++i) composeChartRow(c, rows.cell(i), i);
}

void composeQueue(Composer& c) {
  PictureBox& screen = c.form.Picture1[4];
  const Ground& on = c.theme.screen;
  auto [header, body] = partsOf(c, screen);
  Box arrows = header.inset(0, c.px(2)).cutRight(c.px(kButtonColumn));
  c.buttons(c.form.lvButtons_H18, 0, screen, Grid(arrows, 2, 1, c.px(kGap)),
            std::to_array<const char*>({"Up", "Down"}), c.theme.plain);
  header.cutRight(arrows.w, c.px(kMargin));
  c.line(*c.form.Label13, screen, header, QStringLiteral("Songs In Queue"),
         {c.theme.header.heading, 16, true});
  c.buttons(c.form.lvButtons_H37, 0, screen, Grid(buttonColumn(c, body), 1, 8, c.px(kGap)), kQueueButtons,
            c.theme.plain);
  composeNextSong(c, body.cutTop(c.px(74), c.px(6)));
  c.line(c.form.Label22[1], screen, body.cutTop(c.px(22), c.px(4)), QStringLiteral("Followed By..."),
         {on.accent, 11, true});
  const Grid rows(body, 1, 5, c.px(6));
  for (int i = 0; i < 5; ++i) composeQueueRow(c, rows.cell(i), i);
}

void composePlaylist(Composer& c) {
  PictureBox& screen = c.form.Picture1[7];
  const Ground& on = c.theme.screen;
  auto [header, body] = partsOf(c, screen);
  composeDeletePlaylist(c, screen);
  header.cutLeft(126 - c.px(kMargin));
  c.line(c.form.Label44[10], screen, header, QStringLiteral("Playlist Name"),
         {c.theme.header.heading, 16, true});
  const Grid column(buttonColumn(c, body), 1, 8, c.px(kGap));
  c.buttons(c.form.lvButtons_H49, 0, screen, column, kPlaylistButtons, c.theme.plain);
  c.button(*c.form.lvButtons_H50, screen, column.cell(7), QStringLiteral("BACK"), c.theme.plain);
  const Grid rows(body, 1, 10, c.px(4));
  for (int i = 0; i < 10; ++i) {
    Box row = rows.cell(i);
    c.artwork(c.form.Picture19[i], screen, cutPicture(row, c.px(10)));
    c.line(c.form.Label44[i], screen, row, QStringLiteral("Playlist Track  %1").arg(i), {on.body, 11});
  }
}

}  // namespace veneerer::design
