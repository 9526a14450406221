// Loops over all layouts: what no example would find.
#include <gtest/gtest.h>

#include "records/layoutwriter.h"
#include "records/recordfiles.h"

namespace veneerer {
namespace {

struct FileCase {
  Layout (*make)(State&);
  const char* name;
  int lines;
};

const FileCase kFiles[] = {
    {menuFile, "menu.ini", 186},
    {menuV2File, "menu_v2.ini", 72},
    {menuPopupFile, "menupopup.ini", 188},
    {moreButtonFile, "morebutton.ini", 12},
    {tabFile, "tab.ini", 40},
    {generalButtonsFile, "genbut.ini", 16},
    {playerFile, "player.ini", 96},
    {playerV2File, "player_v2.ini", 48},
    {navFile, "nav.ini", 170},
    {nav2File, "nav2.ini", 63},
    {progressFile, "progress.ini", 4},
    {skinFile, "skin.ini", 42},
    {resolutionFile, "resolution.ini", 5},
    {mainFile, "main.ini", 177},
    {fontFile, "font.ini", 2},
    {labelAlignFile, "label_align.ini", 524},
    {keyHighlightFile, "key_highlight.ini", 1},
    {nowPlayingFile, "now_playing.ini", 86},
    {trackListFile, "tracklist.ini", 1064},
    {top20File, "top20.ini", 480},
    {historyFile, "history.ini", 526},
    {queueFile, "queue.ini", 397},
    {searchFile, "search.ini", 753},
    {searchResultsFile, "search_res.ini", 474},
    {searchResultsV2File, "search_res_v2.ini", 379},
    {searchChoiceFile, "search_choice.ini", 69},
    {searchTabFile, "search_tab.ini", 52},
    {noSearchFile, "nosearch.ini", 180},
    {intelliFile, "intelli.ini", 9},
    {jumpToLetterFile, "jumptoletter.ini", 369},
    {jumpToLetter2File, "jumptoletter2.ini", 351},
    {jumpToLetter2V2File, "jumptoletter2_v2.ini", 135},
    {decades2File, "decades2.ini", 295},
    {decadesYearFile, "decades_year.ini", 877},
    {decadesYearV2File, "decades_year_v2.ini", 408},
    {decadesMonthFile, "decades_month.ini", 161},
    {decadesSelectorFile, "decades_selector.ini", 90},
    {genreFile, "genre.ini", 1485},
    {genreBarFile, "genre_bar.ini", 135},
    {filterFile, "filter.ini", 16},
    {playlistFile, "playlist.ini", 248},
    {playlistSaveFile, "playlist_save.ini", 493},
    {playlistLoadFile, "playlist_load.ini", 121},
    {optionsFile, "options.ini", 206},
    {optionsV2File, "options_v2.ini", 101},
    {playOptionsFile, "play_options.ini", 550},
    {spinFile, "spin.ini", 12},
    {pinScreenFile, "pin_screen.ini", 153},
    {pinScreenV2File, "pin_screen_v2.ini", 76},
    {requestFile, "request.ini", 503},
    {confirmFile, "confirm.ini", 21},
    {freeCreditFile, "free_credit.ini", 34},
    {freeCreditV2File, "free_credit_v2.ini", 26},
    {myLoginFile, "mylogin.ini", 543},
    {myVQuillFile, "myvquill.ini", 876},
    {collectionsFile, "collections.ini", 81},
    {licenceFile, "licence.ini", 16},
    {framesFile, "frames.ini", 28},
    {lockedButtonFile, "locked_button.ini", 36},
};

bool isSame(const Slot& left, const Slot& right) {
  return left.element == right.element && left.property == right.property;
}

TEST(Layouts, HaveTheLineCountsOfTheFormatAndAReasonForEveryOddRow) {
  State state;
  for (const FileCase& file : kFiles) {
    const Layout layout = file.make(state);
    EXPECT_EQ(layout.fileName().toStdString(), file.name);
    EXPECT_EQ(layout.lineCount(), file.lines) << file.name;
    EXPECT_EQ(composeRecords(layout).count("\r\n"), file.lines) << file.name;
    int line = 0;
    for (const Row& row : layout.rows()) {
      ++line;
      const bool isOdd = row.isWrittenOnly || row.storedInto != row.storedFrom ||
                         (row.kind != RowKind::LabelLine && !isSame(row.into, row.from));
      EXPECT_EQ(isOdd, row.why != nullptr) << file.name << ":" << line;
    }
  }
}

TEST(Layouts, PutAFewKnownLinesWhereTheFormatHasThem) {
  State state;
  const auto rowAt = [&](Layout (*make)(State&), int line) {
    return make(state).rows()[std::size_t(line - 1)];
  };
  EXPECT_EQ(rowAt(menuFile, 4).into.element, &state.form1.Picture2[0]);
  EXPECT_EQ(rowAt(menuFile, 18).kind, RowKind::LabelLine);
  EXPECT_EQ(rowAt(playerFile, 84).kind, RowKind::LabelLine);
  EXPECT_EQ(rowAt(nowPlayingFile, 72).into.property, Property::Height) << "a GeometryQuad among PlaceQuads";
  EXPECT_EQ(rowAt(navFile, 41).storedInto, &state.names.NavName.value());
  EXPECT_EQ(rowAt(navFile, 167).into.element, &state.form1.Picture31[7]);
  EXPECT_EQ(rowAt(trackListFile, 705).into.element, &*state.form4.Combo12);
  EXPECT_EQ(rowAt(trackListFile, 1036).storedInto, &state.names.FeedPanelName.value());
  EXPECT_EQ(rowAt(genreFile, 415).into.element, &*state.form4.Combo7);
  EXPECT_EQ(rowAt(genreFile, 1104).into.element, &*state.form4.Combo11);
  EXPECT_EQ(rowAt(jumpToLetterFile, 356).storedInto, &state.names.ofButtons(state.form1.lvButtons_H22)[26]);
  EXPECT_EQ(rowAt(searchResultsV2File, 290).from.element, &state.form1.lvButtons_H28[0]);
  EXPECT_EQ(rowAt(myVQuillFile, 836).storedInto, &state.names.MemberKeyboardName.value());
  EXPECT_EQ(rowAt(playlistFile, 237).into.element, &state.form1.lvButtons_H49[7]);
  EXPECT_EQ(rowAt(playlistFile, 237).from.element, &state.form1.lvButtons_H49[8]);
}

}  // namespace
}  // namespace veneerer
