#include "design/screens.h"

namespace veneerer::design {

namespace {

constexpr int kMainScreen = 0;
constexpr int kFirstDialog = 14;
constexpr int kPinScreen = 16;
constexpr int kLicenceScreen = 26;
constexpr int kConfirmScreen = 28;

// No record holds this one: it stands here in every Skin, and is to fit the smallest.
constexpr Box kLicencePlace{160, 80, 480, 400};

// What the canvas window's frame takes, pixels.
constexpr int kFrameWidth = 4;
constexpr int kFrameHeight = 33;

Box placeOf(const Plan& plan, int screen) {
  // The main screen shows nothing of its own but its size, with the window's frame, is that of the backdrop:
  // a rescale resamples the one to the other.
  if (screen == kMainScreen) return {0, 0, plan.width + kFrameWidth, plan.height + kFrameHeight};
  if (screen == kLicenceScreen) return kLicencePlace;
  if (screen == kPinScreen) return plan.pin;
  if (screen == kConfirmScreen) return plan.confirm;
  return screen < kFirstDialog ? plan.screen : plan.dialog;
}

}  // namespace

void composeScreens(Composer& c) {
  for (int i = 0; i < 30; ++i) c.panel(c.form.Picture1[i], c.form, placeOf(c.plan, i), c.theme.screen.back);
  c.clearPanel(c.form.Picture12[0], c.form, c.plan.genreBar);
  c.panel(*c.form.Picture23, c.form, c.plan.popup, c.theme.bar.back);
}

void composeCanvas(Composer& c) {
  constexpr void (*kComposers[])(Composer&) = {composeFrame,
                                               composeScreens,
                                               composeHistory,
                                               composeTop20,
                                               composeSearch,
                                               composeQueue,
                                               composeOptions,
                                               composeDecades,
                                               composePlaylist,
                                               composeNowPlaying,
                                               composeAlbumView,
                                               composeTrackListing,
                                               composeSearchResults,
                                               composeJumpToLetter,
                                               composeGenre,
                                               composeSearchChoice,
                                               composePlayOptions,
                                               composePin,
                                               composeDecadeSelectors,
                                               composePlaylistDialogs,
                                               composeNoSearchResults,
                                               composeRequest,
                                               composeLogin,
                                               composeMemberHome,
                                               composeLicence,
                                               composeCollections,
                                               composeConfirmation,
                                               composeFreeCredit,
                                               composePopup};
  for (auto* compose : kComposers) compose(c);
}

}  // namespace veneerer::design
