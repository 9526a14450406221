// The track listing: the album at the left, twenty tracks in the middle, other albums at the right.
#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr const char* kFooter[] = {"By||Artist", "By||Genre", "By||Year", "By||Album", "Most||Played"};

void composeAlbumInfo(Composer& c, Box area) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[10];
  const Ground& on = c.theme.screen;
  c.artwork(f.Picture2[10], screen, area.cutTop(area.w, c.px(6)));
  c.line(f.Label2[2], screen, area.cutTop(c.px(18)), QStringLiteral("Released : "), {on.body, 9});
  c.line(f.Label2[3], screen, area.cutTop(c.px(18), c.px(6)), QStringLiteral("Genre : "), {on.body, 9});
  Box feed = area.cutTop(area.h * 9 / 20, c.px(6));
  c.clearPanel(f.Picture2[14], screen, feed);
  const Grid lines(feed.inset(c.px(6), c.px(3)), 1, 5, 0);
  for (int i = 0; i < 5; ++i)
    c.line(f.Label2[4 + i], screen, lines.cell(i), QStringLiteral("RSS Feed"),
           {i == 0 ? on.heading : on.muted, 8, i == 0});
  PictureBox& story = f.Picture2[15];
  c.clearPanel(story, screen, area);
  Box inside = area.inside().inset(c.px(6), c.px(4));
  c.button(f.lvButtons_H8[2], story, inside.cutBottom(c.finger(32), c.px(4)), QStringLiteral("Read More"),
           c.theme.plain);
  c.line(f.Label2[9], story, inside.cutTop(c.px(16)), QStringLiteral("RSS Headline"),
         {c.theme.card.heading, 9, true});
  c.text(f.Label2[10], story, inside, QStringLiteral("RSS Body"), {c.theme.card.body, 8});
}

// The places of a track's title, number, play count and stars.
struct TrackPlaces {
  Box title, number, count, stars;
};

TrackPlaces inOneLine(const Composer& c, Box row) {
  TrackPlaces places;
  places.stars = row.cutRight(c.px(60), c.px(4)).inset(0, c.px(2));
  places.count = row.cutRight(c.px(78), c.px(4));
  places.number = row.cutLeft(c.px(56), c.px(4));
  places.title = row;
  return places;
}

// Two lines make a row that a finger hits.
TrackPlaces inTwoLines(const Composer& c, Box row) {
  TrackPlaces places;
  row = row.centred(row.w, std::min(row.h, c.px(38)));
  Box upper = row.cutTop(row.h / 2);
  places.number = upper.cutLeft(c.px(57), c.px(2));
  places.title = upper;
  places.stars = row.cutLeft(c.px(56), c.px(4)).inset(0, c.px(1));
  places.count = row;
  return places;
}

void composeTrack(Composer& c, const TrackPlaces& at, int i) {
  Form1& f = c.form;
  PictureBox& screen = f.Picture1[10];
  const Ground& on = c.theme.screen;
  c.image(f.aicAlphaImage1[i], screen, at.stars);
  f.aicAlphaImage1[i].setToolTipText(QStringLiteral("Star Rating %1").arg(i));
  c.line(f.Label60[i], screen, at.count, QStringLiteral("Play Count:  %1").arg(i),
         {on.muted, 8, false, Alignment::Right});
  c.line(f.Label3[i], screen, at.number, QStringLiteral("Track  %1").arg(i), {on.accent, 9});
  c.line(f.Label1[i], screen, at.title, QStringLiteral("Track Listing  %1").arg(i), {on.body, 9});
}

void composeTracks(Composer& c, const Box& area) {
  c.clearPanel(*c.form.Picture8, c.form.Picture1[10], area);
  const int columns = c.plan.trackColumns;
  const int rows = kTracks / columns;
  const Grid grid(area.inset(c.px(8), c.px(3)), columns, rows, c.px(10), 0);
  for (int i = 0; i < kTracks; ++i) {
    const Box cell = grid.cell(i / rows, i % rows);
    composeTrack(c, columns > 1 ? inTwoLines(c, cell) : inOneLine(c, cell), i);
  }
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
  const Box others = body.cutRight(c.px(c.plan.trackColumns > 1 ? 152 : 140), c.px(8));
  composeTracks(c, body);
  composeOtherAlbums(c, others);
}

}  // namespace veneerer::design
