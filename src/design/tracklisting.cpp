// The track listing: the album at the left, twenty tracks in the middle, other albums at the right.
#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kFooter[] = {"By||Artist", "By||Genre", "By||Year", "By||Album", "Most||Played"};

void composeAlbumInfo(Composer& c, Box area) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[10];
  const Ground& on = c.theme.screen;
  c.panel(f.Picture2[10], screen, area.cutTop(area.w, c.px(6)), kArtwork);
  c.line(f.Label2[2], screen, area.cutTop(c.px(18)), QStringLiteral("Released : "), {on.body, 9});
  c.line(f.Label2[3], screen, area.cutTop(c.px(18), c.px(6)), QStringLiteral("Genre : "), {on.body, 9});
  Box feed = area.cutTop(area.h * 9 / 20, c.px(6));
  c.panel(f.Picture2[14], screen, feed, kCardBack);
  const Grid lines(feed.inset(c.px(6), c.px(3)), 1, 5, 0);
  for (int i = 0; i < 5; ++i)
    c.line(f.Label2[4 + i], screen, lines.cell(i), QStringLiteral("RSS Feed"),
           {i == 0 ? c.theme.card.heading : c.theme.card.muted, 8, i == 0});
  PictureBox& story = f.Picture2[15];
  c.panel(story, screen, area, kCardBack);
  Box inside = area.inside().inset(c.px(6), c.px(4));
  c.button(f.lvButtons_H8[2], story, inside.cutBottom(c.px(32), c.px(4)), QStringLiteral("Read More"),
           c.theme.plain);
  c.line(f.Label2[9], story, inside.cutTop(c.px(16)), QStringLiteral("RSS Headline"),
         {c.theme.card.heading, 9, true});
  c.text(f.Label2[10], story, inside, QStringLiteral("RSS Body"), {c.theme.card.body, 8});
}

void composeTrackRow(Composer& c, Box row, int i) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[10];
  c.image(f.aicAlphaImage1[i], screen, row.cutRight(c.px(60), c.px(4)).inset(0, c.px(2)));
  f.aicAlphaImage1[i].setToolTipText(QStringLiteral("Star Rating %1").arg(i));
  c.line(f.Label60[i], screen, row.cutRight(c.px(78), c.px(4)), QStringLiteral("Play Count:  %1").arg(i),
         {c.theme.card.muted, 8, false, Alignment::Right});
  c.line(f.Label3[i], screen, row.cutLeft(c.px(56), c.px(4)), QStringLiteral("Track  %1").arg(i),
         {c.theme.card.accent, 9});
  c.line(f.Label1[i], screen, row, QStringLiteral("Track Listing  %1").arg(i), {c.theme.card.body, 9});
}

void composeTracks(Composer& c, const Box& area) {
  c.panel(*c.form.Picture8, c.form.Picture1[10], area, kCardBack);
  const Grid rows(area.inset(c.px(8), c.px(3)), 1, kTracks, 0);
  for (int i = 0; i < kTracks; ++i) composeTrackRow(c, rows.cell(i), i);
}

void composeOtherAlbums(Composer& c, Box area) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[10];
  const Ground& on = c.theme.screen;
  c.line(f.Label64[20], screen, area.cutTop(c.px(20), c.px(2)), QStringLiteral("More By Artist:"),
         {on.accent, 10, true});
  const Grid grid(area, 2, 5, c.px(6), c.px(4));
  for (int i = 0; i < 10; ++i) {
    Box cell = grid.cell(i);
    const TextLook small{on.muted, 8, false, Alignment::Center};
    const TextLook title{on.body, 8, false, Alignment::Center};
    c.text(f.Label64[10 + i], screen, cell.cutBottom(c.lineOf(small)),
           QStringLiteral("Artist  %1").arg(i + 1), small);
    c.text(f.Label64[i], screen, cell.cutBottom(c.lineOf(title)), QStringLiteral("Album Title  %1").arg(i),
           title);
    const int side = std::min(cell.w, cell.h - c.px(2));
    c.artwork(f.Picture14[i], screen, {cell.x + (cell.w - side) / 2, cell.y, side, side});
  }
}

void composeFooter(Composer& c, Box foot) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[10];
  c.button(*f.lvButtons_H11, screen, foot.cutLeft(c.px(62), c.px(kGap)), QStringLiteral("Back"),
           c.theme.plain);
  const Grid add(foot.cutRight(2 * c.px(84) + c.px(4), c.px(kGap)), 2, 1, c.px(4));
  c.buttons(f.lvButtons_H10, 0, screen, add,
            std::to_array<const char*>({"Add Entire||Album", "Add||Playlist"}), c.theme.primary, 9);
  const Grid by(foot, 6, 1, c.px(4));
  c.buttons(f.lvButtons_H12, 0, screen, by, kFooter, c.theme.plain, 8);
  c.button(f.lvButtons_H12[7], screen, by.cell(5), QStringLiteral("Show||All"), c.theme.plain, 8);
}

void composeHeader(Composer& c, Box header) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[10];
  const Grid arrows(header.inset(0, c.px(2)).cutRight(4 * c.px(56) + 3 * c.px(4)), 4, 1, c.px(4));
  c.buttons(f.lvButtons_H8, 0, screen, arrows, std::to_array<const char*>({"Up", "Down"}), c.theme.plain);
  c.button(f.lvButtons_H34[1], screen, arrows.cell(2), QStringLiteral("<"), c.theme.plain, 12);
  c.button(f.lvButtons_H34[0], screen, arrows.cell(3), QStringLiteral(">"), c.theme.plain, 12);
  header.cutRight(4 * c.px(56) + 3 * c.px(4), c.px(kMargin));
  Box titles = header.inset(0, c.px(3));
  c.line(f.Label2[0], screen, titles.cutTop(c.px(25)), QStringLiteral("RSS Feed"),
         {c.theme.header.heading, 14, true});
  c.line(f.Label2[1], screen, titles, QStringLiteral("RSS Feed"), {c.theme.header.accent, 10});
}

}  // namespace

void composeTrackListing(Composer& c) {
  auto [header, body] = partsOf(c, c.form.Picture1[10]);
  composeHeader(c, header);
  composeFooter(c, body.cutBottom(c.px(kTouch), c.px(6)));
  composeAlbumInfo(c, body.cutLeft(c.px(122), c.px(8)));
  const Box others = body.cutRight(c.px(140), c.px(8));
  composeTracks(c, body);
  composeOtherAlbums(c, others);
}

}  // namespace veneerer::design
