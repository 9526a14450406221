#include "skin/lists.h"

#include <span>

#include "canvas/screens.h"
#include "elements/numbers.h"

namespace veneerer {

namespace {

constexpr const char* kAlignments[] = {"Left Align", "Right Align", "Center Align"};

constexpr const char* kDefaultScreens[] = {
    "Album View",           "Genre Selection Screen",  "History Screen",        "Top20 Screen",
    "Queue Screen",         "Decades Screen",          "Playlist Screen",       "Now Playing Screen",
    "Search Choice Screen", "My V-Quill Login Screen", "My V-Quill Home Screen"};

constexpr const char* kJumpToLetter[] = {"Jump To Button", "Vertical Slider", "Horizontal Slider",
                                         "Buttons On Album Screen", "Jump To Button On Main Screen"};

constexpr const char* kGenreStyles[] = {"Genre Screen", "Genre Screen W/Icons",
                                        "Genre Screen W/Thumnails Quick Jump",
                                        "Genre Screen W/Text Quick Jump"};

// The row's index is what skin.ini stores, in a numbering that the jukebox fixes: the unused rows hold
// places.
constexpr const char* kHomeScreens[] = {"History Screen",   "Top 20 / Hot Hits",
                                        "Search",           "Queue",
                                        "Options Screen",   "Decades Chart",
                                        "Load Playlist",    "Now Playing Screen",
                                        "Album View",       "Track Listing",
                                        "Search Results",   "Genre Filter",
                                        "Search Options",   "Play Options",
                                        "UNUSED",           "Decades Chart Selection",
                                        "Search Not Found", "Request Track Screen",
                                        "My V-Quill",       "My V-Quill Login",
                                        "UNUSED",           "UNUSED",
                                        "Hot Collections"};
constexpr int kAlbumViewRow = 8;

constexpr const char* kPlayerStyles[] = {"Normal Player", "Normal Player W/Buttons", "Pop Up Player",
                                         "Pop Up Player W/Buttons"};

constexpr const char* kGenreNavigation[] = {"Jump To Letter Button", "Letters On Screen"};

constexpr const char* kNavigationStyles[] = {"On Album Screen", "On Main Screen"};

QStringList rows(std::span<const char* const> texts) {
  QStringList list;
  for (const char* text : texts) list.append(QString::fromLatin1(text));
  return list;
}

/// The numbers from first to last, each with its sign blank, between the two texts.
QStringList numbered(const char* before, int first, int last, const char* after) {
  QStringList list;
  for (int n = first; n <= last; ++n)
    list.append(QString::fromLatin1(before) + signedNumber(n) + QString::fromLatin1(after));
  return list;
}

void fillAndSelect(ComboBox& box, const QStringList& list, int row) {
  box.setRows(list);
  box.select(row);
}

}  // namespace

void fillFirstLists(State& state) {
  state.form6.Combo5->setRows(rows(kAlignments));
  state.form6.Combo5->setText(QStringLiteral("Center Align"));
  QStringList screens;
  for (std::u16string_view entry : kScreenEntries) screens.append(QString::fromUtf16(entry.data()));
  state.form6.Combo6->setRows(screens);
  state.form6.Combo6->setText(screens.first());
  state.form4.Combo8->setRows(rows(kDefaultScreens));
  state.form4.Combo8->setText(QStringLiteral("Album View"));
}

void fillOtherLists(State& state) {
  Form4& form4 = state.form4;
  const QStringList covers = numbered("", 1, kCovers, "");
  form4.Combo4->setRows(covers);
  // The number of covers in use, as a cover file shows it.
  form4.Combo4->setText(QString::number(state.globals.LastCoverIndex->value() + 1));
  state.form5.Combo1->setRows(covers);
  form4.Combo1->setRows(numbered("", 1, kTracks, ""));
  form4.Combo7->setRows(covers);
  fillAndSelect(*form4.Combo2, rows(kJumpToLetter), 0);
  fillAndSelect(*form4.Combo5, rows(kGenreStyles), 0);
  fillAndSelect(*form4.Combo9, rows(kHomeScreens), kAlbumViewRow);
  fillAndSelect(*form4.Combo10, rows(kPlayerStyles), 0);
  fillAndSelect(*form4.Combo11, rows(kGenreNavigation), 0);
  form4.Combo12->setRows(numbered("", 1, kOtherAlbums, " Albums"));
  fillAndSelect(*form4.Combo6, rows(kNavigationStyles), 0);
  state.form6.Combo1->setRows(numbered("Style ", 0, 8, ""));
  state.form6.Combo2->setRows(numbered("Style ", 0, 7, ""));
  state.form6.Combo4->setRows(numbered("Style ", 0, 4, ""));
}

}  // namespace veneerer
