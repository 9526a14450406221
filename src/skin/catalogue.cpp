#include "skin/catalogue.h"

#include <algorithm>

namespace veneerer {

namespace {

// clang-format off
constexpr LoadEntry kLoadOrder[] = {
  {lockedButtonFile, "Loading Skin (Locked Buttons)..."},
  {menuFile, "Loading Skin (MENU)..."},
  {menuPopupFile, "Loading Skin (MENU POPUP)..."},
  {moreButtonFile, "Loading Skin (MORE BUTTON)..."},
  {playerFile, "Loading Skin (PLAYER)..."},
  {navFile, "Loading Skin (NAVIGATION BUTTONS)..."},
  {nav2File, "Loading Skin (NAVIGATION BUTTONS)..."},
  {tabFile, "Loading Skin (TABS)..."},
  {fontFile, "Loading Skin (FONTS)..."},
  {skinFile, "Loading Skin (MAIN LAYOUT)..."},
  {generalButtonsFile, "Loading Skin (GENERAL BUTTONS)..."},
  {searchFile, "Loading Skin (SEARCH SCREEN)..."},
  {searchResultsFile, "Loading Skin (SEARCH RESULTS)..."},
  {progressFile, "Loading Skin (PROGRESS SCREEN)..."},
  {nowPlayingFile, "Loading Skin (NOW PLAYING SCREEN)..."},
  {trackListFile, "Loading Skin (TRACK LISTING SCREEN)..."},
  {top20File, "Loading Skin (TOP 20 SCREEN)..."},
  {decades2File, "Loading Skin (DECADES SCREEN)..."},
  {mainFile, "Loading Skin (MAIN SCREEN)..."},
  {jumpToLetterFile, "Loading Skin (JUMP TO LETTER SCREEN)..."},
  {jumpToLetter2File, "Loading Skin (JUMP TO LETTER 2nd SCREEN)..."},
  {resolutionFile, "Loading Skin (SETTING RESOLUTION)..."},
  {licenceFile, "Loading Skin (LICENCE SCREEN)..."},
  {historyFile, "Loading Skin (HISTORY SCREEN)..."},
  {optionsFile, "Loading Skin (OPTIONS SCREEN)..."},
  {genreFile, "Loading Skin (FILTER SCREEN)..."},
  {genreBarFile, "Loading Skin (FILTER SCREEN)..."},
  {queueFile, "Loading Skin (QUEUE SCREEN)..."},
  {searchChoiceFile, "Loading Skin (SEARCH CHOICE SCREEN)..."},
  {playOptionsFile, "Loading Skin (PLAY OPTIONS SCREEN)..."},
  {spinFile, "Loading Skin (SPIN ON THIS SCREEN)..."},
  {searchTabFile, "Loading Skin (SEARCH TAB SCREEN)..."},
  {pinScreenFile, "Loading Skin (PIN SCREEN)..."},
  {decadesYearFile, "Loading Skin (DECADES YEAR SCREEN)..."},
  {decadesMonthFile, "Loading Skin (DECADES MONTH SCREEN)..."},
  {decadesSelectorFile},
  {playlistFile},
  {playlistSaveFile},
  {playlistLoadFile},
  {framesFile},
  {labelAlignFile},
  {noSearchFile},
  {intelliFile},
  {requestFile, "Loading Skin (REQUEST SCREEN)..."},
  {filterFile, "Loading Skin (REQUEST SCREEN)..."},
  {keyHighlightFile, "Loading Skin (REQUEST SCREEN)..."},
  {myLoginFile, "Loading Skin (MY V-QUILL SCREEN)..."},
  {myVQuillFile, "Loading Skin (MY V-QUILL SCREEN)..."},
  {collectionsFile, "Loading Skin (MY V-QUILL SCREEN)..."},
  {confirmFile, "Loading Skin (CONFIRMATION SCREEN)..."},
  {freeCreditFile, "Loading Skin (CONFIRMATION SCREEN)..."},
};

constexpr MakeLayout kReloadOrder[] = {
  menuFile,
  menuPopupFile,
  moreButtonFile,
  playerFile,
  navFile,
  nav2File,
  tabFile,
  fontFile,
  skinFile,
  progressFile,
  backFile,
  generalButtonsFile,
  searchFile,
  searchResultsFile,
  nowPlayingFile,
  trackListFile,
  top20File,
  decades2File,
  mainFile,
  jumpToLetterFile,
  jumpToLetter2File,
  resolutionFile,
  licenceFile,
  historyFile,
  optionsFile,
  genreFile,
  genreBarFile,
  queueFile,
  searchChoiceFile,
  playOptionsFile,
  spinFile,
  searchTabFile,
  pinScreenFile,
  decadesYearFile,
  decadesMonthFile,
  decadesSelectorFile,
  playlistFile,
  playlistSaveFile,
  playlistLoadFile,
  framesFile,
  labelAlignFile,
  noSearchFile,
  intelliFile,
  requestFile,
  filterFile,
  keyHighlightFile,
  myLoginFile,
  myVQuillFile,
  collectionsFile,
};

constexpr SaveEntry kSaveOrder[] = {
  {menuFile},
  {menuV2File},
  {menuPopupFile},
  {moreButtonFile},
  {fontFile},
  {playerFile},
  {playerV2File},
  {navFile},
  {nav2File},
  {tabFile},
  {progressFile},
  {backFile},
  {generalButtonsFile},
  {skinFile},
  {searchFile},
  {searchResultsFile},
  {searchResultsV2File},
  {nowPlayingFile},
  {trackListFile},
  {top20File},
  {decades2File},
  {mainFile},
  {jumpToLetterFile},
  {jumpToLetter2File},
  {jumpToLetter2V2File},
  {resolutionFile},
  {licenceFile},
  {historyFile},
  {genreFile},
  {queueFile},
  {optionsFile},
  {optionsV2File},
  {searchChoiceFile, "search_Choice.ini"},
  {genreBarFile},
  {playOptionsFile},
  {spinFile},
  {searchTabFile},
  {pinScreenFile},
  {pinScreenV2File},
  {decadesYearFile},
  {decadesYearV2File},
  {decadesMonthFile},
  {decadesSelectorFile},
  {playlistFile},
  {playlistSaveFile},
  {playlistLoadFile},
  {framesFile},
  {labelAlignFile},
  {noSearchFile},
  {intelliFile},
  {requestFile},
  {filterFile},
  {keyHighlightFile},
  {myLoginFile},
  {myVQuillFile},
  {collectionsFile},
  {confirmFile},
  {freeCreditFile},
  {freeCreditV2File},
  {lockedButtonFile},
};
// clang-format on

}  // namespace

std::span<const LoadEntry> loadOrder() {
  return kLoadOrder;
}

std::span<const MakeLayout> reloadOrder() {
  return kReloadOrder;
}

std::span<const SaveEntry> saveOrder() {
  return kSaveOrder;
}

bool isLoaded(const SaveEntry& entry) {
  return std::ranges::find(kLoadOrder, entry.layout, &LoadEntry::layout) != std::end(kLoadOrder);
}

QString savedName(const SaveEntry& entry, const Layout& layout) {
  return entry.name ? QString::fromLatin1(entry.name) : layout.fileName();
}

}  // namespace veneerer
