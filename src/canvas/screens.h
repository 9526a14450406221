// The screens of the jukebox, one of which the canvas shows at a time.
#pragma once

#include <QString>
#include <array>
#include <string_view>

#include "elements/stage.h"
#include "forms/state.h"

namespace veneerer {

/// The entries of the Edit Section list. The first 30 are the members of Picture1, the others are
/// Picture12(0) and Picture23.
inline constexpr std::array<std::u16string_view, 32> kScreenEntries = {
    u"Main Screen",
    u"History Screen",
    u"Top20 Screen",
    u"Search Screen",
    u"Queue Screen",
    u"Options Screen",
    u"Decades Screen",
    u"Playlist Screen",
    u"Now Playing Screen",
    u"Album View",
    u"Track Listing Screen",
    u"Search Results Screen",
    u"Jump to letter",
    u"Genre Selection Screen",
    u"Search Choice Screen",
    u"Play Options Screen",
    u"Pin Entry Screen",
    u"Decades Year Selection",
    u"Decades CHART Selection",
    u"Decades Month Selection",
    u"Load Playlist Screen",
    u"Save Playlist Screen",
    u"No Search Results Found",
    u"Request Track Screen",
    u"My V-Quill Login Screen",
    u"My V-Quill Home Screen",
    u"Licence Agreement Screen",
    u"Collections Screen",
    u"Confimation Screen",
    u"Free Credit Screen",
    u"Genre Selection Bar",
    u"Pop Up Menu",
};

/// The entry of that row, 0 to 31, in its own words.
QString screenTitle(int entry);

/// The panel of an entry, 0 to 31.
const Element& screenOf(const State& state, int entry);
Element& screenOf(State& state, int entry);

/// The entry whose panel the element is, -1 for none.
int entryOf(const State& state, const Element& element);

/// The entry that is chosen, else, as behind a start, the one that is seen; -1 for none.
int shownEntry(const State& state);

/// Whether the element is the panel of an entry.
bool isScreen(const State& state, const Element& element);

/// Whether the element stands on a screen that is shown, or on the frame; it may be hidden there itself.
bool isOnShownScreen(const State& state, const Element& element);

/// Shows the screen of an entry in front, alone but for the two that the Skin's properties keep shown. No row
/// (-1) shows nothing new. The current Section stays.
void showScreen(State& state, int entry);

/// What stands on the canvas window when the screen of that entry, 0 to 31, is shown. Nothing is changed by
/// asking.
Stage stageOf(const State& state, int entry);

/// Whether those screens are shown, and only those, that showScreen() shows for that entry.
bool isScreenShown(const State& state, int entry);

}  // namespace veneerer
