// The layout of every record file, one function a file, one source a family of files.
#pragma once

#include "records/layout.h"

namespace veneerer {

// The chrome round every screen: files/chrome.cpp.
Layout menuFile(State& state);
Layout menuV2File(State& state);
Layout menuPopupFile(State& state);
Layout moreButtonFile(State& state);
Layout tabFile(State& state);
Layout generalButtonsFile(State& state);
/// Without lines: back.ini has its place in the reload and in the save, and neither does anything with it.
Layout backFile(State& state);

// Player and navigation: files/player.cpp.
Layout playerFile(State& state);
Layout playerV2File(State& state);
Layout navFile(State& state);
Layout nav2File(State& state);
Layout progressFile(State& state);

// The main layout: files/mainlayout.cpp and files/labelalign.cpp.
Layout skinFile(State& state);
Layout resolutionFile(State& state);
Layout mainFile(State& state);
Layout fontFile(State& state);
Layout labelAlignFile(State& state);
Layout keyHighlightFile(State& state);

// Listing screens: files/listing.cpp and files/tracklist.cpp.
Layout nowPlayingFile(State& state);
Layout trackListFile(State& state);
Layout top20File(State& state);
Layout historyFile(State& state);
Layout queueFile(State& state);

// Search screens: files/search.cpp, files/jumptoletter.cpp.
Layout searchFile(State& state);
Layout searchResultsFile(State& state);
Layout searchResultsV2File(State& state);
/// Read as search_choice.ini and written as search_Choice.ini: both names must stay as they are, so where
/// case counts a saved Skin isn't read back into that screen.
Layout searchChoiceFile(State& state);
Layout searchTabFile(State& state);
Layout noSearchFile(State& state);
Layout intelliFile(State& state);
Layout jumpToLetterFile(State& state);
Layout jumpToLetter2File(State& state);
Layout jumpToLetter2V2File(State& state);

// Decades screens: files/decades.cpp.
Layout decades2File(State& state);
Layout decadesYearFile(State& state);
Layout decadesYearV2File(State& state);
Layout decadesMonthFile(State& state);
Layout decadesSelectorFile(State& state);

// Genre screens: files/genre.cpp.
Layout genreFile(State& state);
Layout genreBarFile(State& state);
Layout filterFile(State& state);

// Playlist screens: files/playlist.cpp.
Layout playlistFile(State& state);
Layout playlistSaveFile(State& state);
Layout playlistLoadFile(State& state);

// Dialog screens: files/dialogs.cpp and files/playoptions.cpp.
Layout optionsFile(State& state);
Layout optionsV2File(State& state);
Layout playOptionsFile(State& state);
Layout spinFile(State& state);
Layout pinScreenFile(State& state);
Layout pinScreenV2File(State& state);
Layout requestFile(State& state);
Layout confirmFile(State& state);
Layout freeCreditFile(State& state);
Layout freeCreditV2File(State& state);

// Member and special screens: files/member.cpp.
Layout myLoginFile(State& state);
Layout myVQuillFile(State& state);
Layout collectionsFile(State& state);
Layout licenceFile(State& state);
Layout framesFile(State& state);

// Button availability: files/availability.cpp.
Layout lockedButtonFile(State& state);

}  // namespace veneerer
