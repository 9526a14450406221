// The pictures that a rescale resamples, in their order. Those of the later screens and the album frames are
// none of them.
#pragma once

#include "canvas/familyref.h"

namespace veneerer {

struct RescaleTarget {
  FamilyRef family;  ///< of the element that gives the size
  int index;
  ImageSlot& (*name)(ImageNames& names);
};

namespace rescale {

template <int Index>
inline constexpr auto kBackdrop = [](ImageNames& names) -> ImageSlot& { return names.ImageName[Index]; };

template <auto Member>
inline constexpr auto kName = [](ImageNames& names) -> ImageSlot& { return *(names.*Member); };

inline constexpr FamilyRef kScreen = kCanvas<&Form1::Picture1>;
inline constexpr FamilyRef kPanel = kCanvas<&Form1::Picture2>;

}  // namespace rescale

inline constexpr RescaleTarget kRescaleTargets[] = {
    {rescale::kScreen, 0, rescale::kBackdrop<0>},
    {rescale::kScreen, 1, rescale::kBackdrop<1>},
    {rescale::kScreen, 2, rescale::kBackdrop<2>},
    {rescale::kScreen, 3, rescale::kBackdrop<3>},
    {rescale::kScreen, 4, rescale::kBackdrop<4>},
    {rescale::kScreen, 5, rescale::kBackdrop<5>},
    {rescale::kScreen, 6, rescale::kBackdrop<6>},
    {rescale::kScreen, 7, rescale::kBackdrop<7>},
    {rescale::kScreen, 8, rescale::kBackdrop<8>},
    {rescale::kScreen, 9, rescale::kBackdrop<9>},
    {rescale::kScreen, 10, rescale::kBackdrop<10>},
    {rescale::kScreen, 11, rescale::kBackdrop<11>},
    {rescale::kScreen, 14, rescale::kName<&ImageNames::SearchChoiceName>},
    {rescale::kPanel, 1, rescale::kBackdrop<13>},
    {rescale::kPanel, 2, rescale::kBackdrop<14>},
    {rescale::kScreen, 11, rescale::kName<&ImageNames::SearchResultsName>},
    {rescale::kScreen, 12, rescale::kName<&ImageNames::JumpToLetterName>},
    {rescale::kScreen, 13, rescale::kName<&ImageNames::GenreName>},
    {rescale::kScreen, 15, rescale::kName<&ImageNames::PlayOptionsName>},
    {rescale::kScreen, 16, rescale::kName<&ImageNames::PinScreenName>},
    {rescale::kScreen, 17, rescale::kName<&ImageNames::DecadesYearName>},
    {rescale::kScreen, 19, rescale::kName<&ImageNames::DecadesMonthName>},
    {rescale::kScreen, 18, rescale::kName<&ImageNames::DecadesSelectorName>},
    {rescale::kScreen, 21, rescale::kName<&ImageNames::PlaylistSaveName>},
    {rescale::kScreen, 20, rescale::kName<&ImageNames::PlaylistLoadName>},
};

}  // namespace veneerer
