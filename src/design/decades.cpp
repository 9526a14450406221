// The decades: the chart and the selectors of chart, year and month.
#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kDecades[] = {"10's", "00's", "90's", "80's", "70's", "60's", "50's"};
// As the jukebox spells them.
constexpr const char* kMonths[] = {"January", "Feburary", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};
constexpr const char* kCharts[] = {"Top 20 Singles", "Top 20 Albums", "Number Ones",
                                   "Dance Chart",    "Rock Chart",    "Country Chart"};
constexpr int kFirstYear = 1953;
constexpr int kYearCount = 67;
constexpr int kFirstDecade = 1950;

// A pair of buttons with what they step through between them.
void composeStepper(Composer& c, Array<Button>& buttons, Label& title, Box area, const char* caption) {
  PictureBox& screen = c.form.Picture1[6];
  c.button(buttons[0], screen, area.cutLeft(c.px(76), c.px(4)), QStringLiteral("Previous"), c.theme.plain);
  c.button(buttons[1], screen, area.cutRight(c.px(76), c.px(4)), QStringLiteral("Next"), c.theme.plain);
  c.line(title, screen, area, QString::fromLatin1(caption),
         {c.theme.screen.heading, 14, true, Alignment::Center});
}

void composeDecadeRow(Composer& c, Box row, int i) {
  PictureBox& screen = c.form.Picture1[6];
  c.artwork(c.form.Picture15[i], screen, cutPicture(row, c.px(10)));
  Box texts = row.centred(row.w, c.px(40));
  c.line(c.form.Label30[i], screen, texts.cutTop(texts.h / 2), QStringLiteral("Track  %1").arg(i),
         {c.theme.screen.heading, 11, true});
  c.line(c.form.Label31[i], screen, texts, QStringLiteral("Artist  %1").arg(i), {c.theme.screen.body, 10});
}

void composeYears(Composer& c) {
  PictureBox& screen = c.form.Picture1[17];
  Box area = dialogOf(screen).inset(c.px(18), c.px(16));
  const Box footer = area.cutBottom(c.px(50), c.px(12));
  c.button(*c.form.lvButtons_H45, screen, footer.centred(c.px(160), footer.h), QStringLiteral("Back"),
           c.theme.plain, 11);
  const Grid labels(area.cutLeft(c.px(54), c.px(6)), 1, 7, c.px(6));
  for (int i = 0; i < 7; ++i)
    c.line(c.form.Label40[i], screen, labels.cell(i), QString::fromLatin1(kDecades[i]),
           {c.theme.screen.accent, 14, true});
  // A year stands in the column of its last digit, the latest decade in the first row.
  const Grid years(area, 10, 7, c.px(5), c.px(6));
  for (int i = 0; i < kYearCount; ++i) {
    const int year = kFirstYear + i;
    const int row = 6 - (year - kFirstDecade) / 10;
    c.button(c.form.lvButtons_H44[i], screen, years.cell(year % 10, row), QString::number(year), c.theme.key,
             10);
  }
}

void composeCharts(Composer& c) {
  PictureBox& screen = c.form.Picture1[18];
  Box area = dialogOf(screen).inset(c.px(22), c.px(20));
  const Box footer = area.cutBottom(c.px(50), c.px(14));
  c.button(*c.form.lvButtons_H15, screen, footer.centred(c.px(160), footer.h), QStringLiteral("Back"),
           c.theme.plain, 11);
  const Grid tiles(area, 3, 2, c.px(16));
  for (int i = 0; i < 6; ++i) {
    Box tile = tiles.cell(i);
    const Box caption = tile.cutBottom(c.px(26), c.px(4));
    c.artwork(c.form.Picture16[i], screen, tile);
    c.line(c.form.Label43[i], screen, caption, QString::fromLatin1(kCharts[i]),
           {c.theme.screen.heading, 11, true, Alignment::Center});
  }
}

void composeMonths(Composer& c) {
  PictureBox& screen = c.form.Picture1[19];
  Box area = dialogOf(screen).inset(c.px(28), c.px(24));
  const Box footer = area.cutBottom(c.px(50), c.px(18));
  c.button(*c.form.lvButtons_H47, screen, footer.centred(c.px(160), footer.h), QStringLiteral("Back"),
           c.theme.plain, 11);
  c.buttons(c.form.lvButtons_H48, 0, screen, Grid(area, 3, 4, c.px(12)), kMonths, c.theme.key, 13);
}

}  // namespace

void composeDecades(Composer& c) {
  PictureBox& screen = c.form.Picture1[6];
  auto [header, body] = partsOf(c, screen);
  Box corner = header.inset(0, c.px(2));
  const Box back = corner.cutRight(c.px(84), c.px(kMargin));
  c.button(*c.form.lvButtons_H40, screen, back, QStringLiteral("BACK"), c.theme.plain);
  header.cutRight(back.w, c.px(kMargin));
  c.artwork(c.form.Picture15[10], screen, header.cutLeft(header.h - c.px(8), c.px(10)).inset(0, c.px(4)));
  c.line(*c.form.Label42, screen, header, QStringLiteral("Viewing ... Chart"),
         {c.theme.header.heading, 16, true});
  const Grid steppers(body.cutBottom(c.px(kTouch), c.px(8)), 2, 1, c.px(16));
  composeStepper(c, c.form.lvButtons_H16, c.form.Label28[0], steppers.cell(0), "Year");
  composeStepper(c, c.form.lvButtons_H17, c.form.Label28[1], steppers.cell(1), "Month");
  const Grid rows(body, 2, 5, c.px(16), c.px(8));
  for (int i = 0; i < 10; ++i) composeDecadeRow(c, rows.cell(i / 5, i % 5), i);
}

void composeDecadeSelectors(Composer& c) {
  composeYears(c);
  composeCharts(c);
  composeMonths(c);
}

}  // namespace veneerer::design
