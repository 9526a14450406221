#include "skin/catalogue.h"

#include <algorithm>

namespace veneerer {

namespace {

std::vector<const CatalogueEntry*> inOrder(int CatalogueEntry::*place) {
  std::vector<const CatalogueEntry*> entries;
  for (const CatalogueEntry& entry : catalogue())
    if (entry.*place > 0) entries.push_back(&entry);
  std::sort(entries.begin(), entries.end(),
            [=](const CatalogueEntry* a, const CatalogueEntry* b) { return a->*place < b->*place; });
  return entries;
}

}  // namespace

const std::vector<CatalogueEntry>& catalogue() {
  // clang-format off
  static const std::vector<CatalogueEntry> entries = {
    {menuFile, 3, 1, 1, "Loading Skin (MENU)..."},
    {menuV2File, 0, 0, 2},
    {menuPopupFile, 4, 2, 3, "Loading Skin (MENU POPUP)..."},
    {moreButtonFile, 5, 3, 4, "Loading Skin (MORE BUTTON)..."},
    {fontFile, 10, 8, 5, "Loading Skin (FONTS)..."},
    {playerFile, 6, 4, 6, "Loading Skin (PLAYER)..."},
    {playerV2File, 0, 0, 7},
    {navFile, 7, 5, 8, "Loading Skin (NAVIGATION BUTTONS)..."},
    {nav2File, 8, 6, 9, "Loading Skin (NAVIGATION BUTTONS)..."},
    {tabFile, 9, 7, 10, "Loading Skin (TABS)..."},
    {progressFile, 15, 10, 11, "Loading Skin (PROGRESS SCREEN)..."},
    {generalButtonsFile, 12, 12, 13, "Loading Skin (GENERAL BUTTONS)..."},
    {skinFile, 11, 9, 14, "Loading Skin (MAIN LAYOUT)..."},
    {searchFile, 13, 13, 15, "Loading Skin (SEARCH SCREEN)..."},
    {searchResultsFile, 14, 14, 16, "Loading Skin (SEARCH RESULTS)..."},
    {searchResultsV2File, 0, 0, 17},
    {nowPlayingFile, 16, 15, 18, "Loading Skin (NOW PLAYING SCREEN)..."},
    {trackListFile, 17, 16, 19, "Loading Skin (TRACK LISTING SCREEN)..."},
    {top20File, 18, 17, 20, "Loading Skin (TOP 20 SCREEN)..."},
    {decades2File, 19, 18, 21, "Loading Skin (DECADES SCREEN)..."},
    {mainFile, 20, 19, 22, "Loading Skin (MAIN SCREEN)..."},
    {jumpToLetterFile, 21, 20, 23, "Loading Skin (JUMP TO LETTER SCREEN)..."},
    {jumpToLetter2File, 22, 21, 24, "Loading Skin (JUMP TO LETTER 2nd SCREEN)..."},
    {jumpToLetter2V2File, 0, 0, 25},
    {resolutionFile, 23, 22, 26, "Loading Skin (SETTING RESOLUTION)..."},
    {licenceFile, 24, 23, 27, "Loading Skin (LICENCE SCREEN)..."},
    {historyFile, 25, 24, 28, "Loading Skin (HISTORY SCREEN)..."},
    {genreFile, 27, 26, 29, "Loading Skin (FILTER SCREEN)..."},
    {queueFile, 29, 28, 30, "Loading Skin (QUEUE SCREEN)..."},
    {optionsFile, 26, 25, 31, "Loading Skin (OPTIONS SCREEN)..."},
    {optionsV2File, 0, 0, 32},
    {searchChoiceFile, 30, 29, 33, "Loading Skin (SEARCH CHOICE SCREEN)...", "search_Choice.ini"},
    {genreBarFile, 28, 27, 34, "Loading Skin (FILTER SCREEN)..."},
    {playOptionsFile, 31, 30, 35, "Loading Skin (PLAY OPTIONS SCREEN)..."},
    {spinFile, 32, 31, 36, "Loading Skin (SPIN ON THIS SCREEN)..."},
    {searchTabFile, 33, 32, 37, "Loading Skin (SEARCH TAB SCREEN)..."},
    {pinScreenFile, 34, 33, 38, "Loading Skin (PIN SCREEN)..."},
    {pinScreenV2File, 0, 0, 39},
    {decadesYearFile, 35, 34, 40, "Loading Skin (DECADES YEAR SCREEN)..."},
    {decadesYearV2File, 0, 0, 41},
    {decadesMonthFile, 36, 35, 42, "Loading Skin (DECADES MONTH SCREEN)..."},
    {decadesSelectorFile, 37, 36, 43},
    {playlistFile, 38, 37, 44},
    {playlistSaveFile, 39, 38, 45},
    {playlistLoadFile, 40, 39, 46},
    {framesFile, 41, 40, 47},
    {labelAlignFile, 42, 41, 48},
    {noSearchFile, 43, 42, 49},
    {intelliFile, 44, 43, 50},
    {requestFile, 45, 44, 51, "Loading Skin (REQUEST SCREEN)..."},
    {filterFile, 46, 45, 52, "Loading Skin (REQUEST SCREEN)..."},
    {keyHighlightFile, 47, 46, 53, "Loading Skin (REQUEST SCREEN)..."},
    {myLoginFile, 48, 47, 54, "Loading Skin (MY V-QUILL SCREEN)..."},
    {myVQuillFile, 49, 48, 55, "Loading Skin (MY V-QUILL SCREEN)..."},
    {collectionsFile, 50, 49, 56, "Loading Skin (MY V-QUILL SCREEN)..."},
    {confirmFile, 51, 0, 57, "Loading Skin (CONFIRMATION SCREEN)..."},
    {freeCreditFile, 52, 0, 58, "Loading Skin (CONFIRMATION SCREEN)..."},
    {freeCreditV2File, 0, 0, 59},
    {lockedButtonFile, 2, 0, 60, "Loading Skin (Locked Buttons)..."},
  };
  // clang-format on
  return entries;
}

std::vector<const CatalogueEntry*> loadOrder() {
  return inOrder(&CatalogueEntry::load);
}

std::vector<const CatalogueEntry*> reloadOrder() {
  return inOrder(&CatalogueEntry::reload);
}

std::vector<const CatalogueEntry*> saveOrder() {
  return inOrder(&CatalogueEntry::save);
}

QString savedName(const CatalogueEntry& entry, const Layout& layout) {
  return entry.saveName ? QString::fromLatin1(entry.saveName) : layout.fileName();
}

}  // namespace veneerer
