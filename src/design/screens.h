// The composers, one for each screen or group of screens that belong together. Each gives every element of
// its screens a container, a place, a text and a look.
#pragma once

#include "design/composer.h"

namespace veneerer::design {

/// The canvas window, the frame round the screens and what stands on the main screen.
void composeFrame(Composer& composer);
/// The screens themselves, on top of the frame.
void composeScreens(Composer& composer);

void composeHistory(Composer& composer);
void composeTop20(Composer& composer);
void composeQueue(Composer& composer);
void composePlaylist(Composer& composer);
void composeSearch(Composer& composer);
void composeSearchResults(Composer& composer);
void composeSearchChoice(Composer& composer);
void composeNoSearchResults(Composer& composer);
void composeJumpToLetter(Composer& composer);
void composeOptions(Composer& composer);
void composeDecades(Composer& composer);
void composeDecadeSelectors(Composer& composer);
void composeNowPlaying(Composer& composer);
void composeAlbumView(Composer& composer);
void composeTrackListing(Composer& composer);
void composeGenre(Composer& composer);
void composePlayOptions(Composer& composer);
void composePin(Composer& composer);
void composePlaylistDialogs(Composer& composer);
void composeRequest(Composer& composer);
void composeLogin(Composer& composer);
void composeMemberHome(Composer& composer);
void composeLicence(Composer& composer);
void composeCollections(Composer& composer);
void composeConfirmation(Composer& composer);
void composeFreeCredit(Composer& composer);
void composePopup(Composer& composer);

/// All of the canvas, bottom to top of the stacking order.
void composeCanvas(Composer& composer);

}  // namespace veneerer::design
