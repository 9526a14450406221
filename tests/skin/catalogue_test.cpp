// The three orders of a Skin's files, each spelt out whole.
#include "skin/catalogue.h"

#include <gtest/gtest.h>

namespace veneerer {
namespace {

using Names = std::vector<std::string>;

class Catalogue : public testing::Test {
protected:
  std::string nameOf(MakeLayout layout) { return layout(state).fileName().toStdString(); }

  State state;
};

TEST_F(Catalogue, AFullLoadReadsTheseFilesUnderTheseTexts) {
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"locked_button.ini", "Loading Skin (Locked Buttons)..."},
      {"menu.ini", "Loading Skin (MENU)..."},
      {"menupopup.ini", "Loading Skin (MENU POPUP)..."},
      {"morebutton.ini", "Loading Skin (MORE BUTTON)..."},
      {"player.ini", "Loading Skin (PLAYER)..."},
      {"nav.ini", "Loading Skin (NAVIGATION BUTTONS)..."},
      {"nav2.ini", "Loading Skin (NAVIGATION BUTTONS)..."},
      {"tab.ini", "Loading Skin (TABS)..."},
      {"font.ini", "Loading Skin (FONTS)..."},
      {"skin.ini", "Loading Skin (MAIN LAYOUT)..."},
      {"genbut.ini", "Loading Skin (GENERAL BUTTONS)..."},
      {"search.ini", "Loading Skin (SEARCH SCREEN)..."},
      {"search_res.ini", "Loading Skin (SEARCH RESULTS)..."},
      {"progress.ini", "Loading Skin (PROGRESS SCREEN)..."},
      {"now_playing.ini", "Loading Skin (NOW PLAYING SCREEN)..."},
      {"tracklist.ini", "Loading Skin (TRACK LISTING SCREEN)..."},
      {"top20.ini", "Loading Skin (TOP 20 SCREEN)..."},
      {"decades2.ini", "Loading Skin (DECADES SCREEN)..."},
      {"main.ini", "Loading Skin (MAIN SCREEN)..."},
      {"jumptoletter.ini", "Loading Skin (JUMP TO LETTER SCREEN)..."},
      {"jumptoletter2.ini", "Loading Skin (JUMP TO LETTER 2nd SCREEN)..."},
      {"resolution.ini", "Loading Skin (SETTING RESOLUTION)..."},
      {"licence.ini", "Loading Skin (LICENCE SCREEN)..."},
      {"history.ini", "Loading Skin (HISTORY SCREEN)..."},
      {"options.ini", "Loading Skin (OPTIONS SCREEN)..."},
      {"genre.ini", "Loading Skin (FILTER SCREEN)..."},
      {"genre_bar.ini", "Loading Skin (FILTER SCREEN)..."},
      {"queue.ini", "Loading Skin (QUEUE SCREEN)..."},
      {"search_choice.ini", "Loading Skin (SEARCH CHOICE SCREEN)..."},
      {"play_options.ini", "Loading Skin (PLAY OPTIONS SCREEN)..."},
      {"spin.ini", "Loading Skin (SPIN ON THIS SCREEN)..."},
      {"search_tab.ini", "Loading Skin (SEARCH TAB SCREEN)..."},
      {"pin_screen.ini", "Loading Skin (PIN SCREEN)..."},
      {"decades_year.ini", "Loading Skin (DECADES YEAR SCREEN)..."},
      {"decades_month.ini", "Loading Skin (DECADES MONTH SCREEN)..."},
      {"decades_selector.ini", "Loading Skin (DECADES MONTH SCREEN)..."},
      {"playlist.ini", "Loading Skin (DECADES MONTH SCREEN)..."},
      {"playlist_save.ini", "Loading Skin (DECADES MONTH SCREEN)..."},
      {"playlist_load.ini", "Loading Skin (DECADES MONTH SCREEN)..."},
      {"frames.ini", "Loading Skin (DECADES MONTH SCREEN)..."},
      {"label_align.ini", "Loading Skin (DECADES MONTH SCREEN)..."},
      {"nosearch.ini", "Loading Skin (DECADES MONTH SCREEN)..."},
      {"intelli.ini", "Loading Skin (DECADES MONTH SCREEN)..."},
      {"request.ini", "Loading Skin (REQUEST SCREEN)..."},
      {"filter.ini", "Loading Skin (REQUEST SCREEN)..."},
      {"key_highlight.ini", "Loading Skin (REQUEST SCREEN)..."},
      {"mylogin.ini", "Loading Skin (MY V-QUILL SCREEN)..."},
      {"myvquill.ini", "Loading Skin (MY V-QUILL SCREEN)..."},
      {"collections.ini", "Loading Skin (MY V-QUILL SCREEN)..."},
      {"confirm.ini", "Loading Skin (CONFIRMATION SCREEN)..."},
      {"free_credit.ini", "Loading Skin (CONFIRMATION SCREEN)..."},
  };
  std::vector<std::pair<std::string, std::string>> walked;
  std::string shown;
  for (const LoadEntry& entry : loadOrder()) {
    if (entry.splash) shown = entry.splash;
    walked.emplace_back(nameOf(entry.layout), shown);
  }
  EXPECT_EQ(walked, expected);
}

TEST_F(Catalogue, AReloadReadsTheseFiles) {
  const Names expected = {
      "menu.ini",          "menupopup.ini",     "morebutton.ini",    "player.ini",
      "nav.ini",           "nav2.ini",          "tab.ini",           "font.ini",
      "skin.ini",          "progress.ini",      "back.ini",          "genbut.ini",
      "search.ini",        "search_res.ini",    "now_playing.ini",   "tracklist.ini",
      "top20.ini",         "decades2.ini",      "main.ini",          "jumptoletter.ini",
      "jumptoletter2.ini", "resolution.ini",    "licence.ini",       "history.ini",
      "options.ini",       "genre.ini",         "genre_bar.ini",     "queue.ini",
      "search_choice.ini", "play_options.ini",  "spin.ini",          "search_tab.ini",
      "pin_screen.ini",    "decades_year.ini",  "decades_month.ini", "decades_selector.ini",
      "playlist.ini",      "playlist_save.ini", "playlist_load.ini", "frames.ini",
      "label_align.ini",   "nosearch.ini",      "intelli.ini",       "request.ini",
      "filter.ini",        "key_highlight.ini", "mylogin.ini",       "myvquill.ini",
      "collections.ini"};
  Names walked;
  for (const MakeLayout layout : reloadOrder()) walked.push_back(nameOf(layout));
  EXPECT_EQ(walked, expected);
}

TEST_F(Catalogue, ASaveWritesTheseFiles) {
  const Names expected = {"menu.ini",
                          "menu_v2.ini",
                          "menupopup.ini",
                          "morebutton.ini",
                          "font.ini",
                          "player.ini",
                          "player_v2.ini",
                          "nav.ini",
                          "nav2.ini",
                          "tab.ini",
                          "progress.ini",
                          "back.ini",
                          "genbut.ini",
                          "skin.ini",
                          "search.ini",
                          "search_res.ini",
                          "search_res_v2.ini",
                          "now_playing.ini",
                          "tracklist.ini",
                          "top20.ini",
                          "decades2.ini",
                          "main.ini",
                          "jumptoletter.ini",
                          "jumptoletter2.ini",
                          "jumptoletter2_v2.ini",
                          "resolution.ini",
                          "licence.ini",
                          "history.ini",
                          "genre.ini",
                          "queue.ini",
                          "options.ini",
                          "options_v2.ini",
                          "search_Choice.ini",
                          "genre_bar.ini",
                          "play_options.ini",
                          "spin.ini",
                          "search_tab.ini",
                          "pin_screen.ini",
                          "pin_screen_v2.ini",
                          "decades_year.ini",
                          "decades_year_v2.ini",
                          "decades_month.ini",
                          "decades_selector.ini",
                          "playlist.ini",
                          "playlist_save.ini",
                          "playlist_load.ini",
                          "frames.ini",
                          "label_align.ini",
                          "nosearch.ini",
                          "intelli.ini",
                          "request.ini",
                          "filter.ini",
                          "key_highlight.ini",
                          "mylogin.ini",
                          "myvquill.ini",
                          "collections.ini",
                          "confirm.ini",
                          "free_credit.ini",
                          "free_credit_v2.ini",
                          "locked_button.ini"};
  Names walked;
  for (const SaveEntry& entry : saveOrder())
    walked.push_back(savedName(entry, entry.layout(state)).toStdString());
  EXPECT_EQ(walked, expected);
}

// search_choice.ini is read under its own name; what is written as search_Choice.ini is another file where
// case counts.
TEST_F(Catalogue, WhatIsOnlyWrittenIsTheTwinsAndTheFileWithoutEffect) {
  Names written;
  for (const SaveEntry& entry : saveOrder())
    if (!isLoaded(entry)) written.push_back(nameOf(entry.layout));
  EXPECT_EQ(written,
            (Names{"menu_v2.ini", "player_v2.ini", "back.ini", "search_res_v2.ini", "jumptoletter2_v2.ini",
                   "options_v2.ini", "pin_screen_v2.ini", "decades_year_v2.ini", "free_credit_v2.ini"}));
}

}  // namespace
}  // namespace veneerer
