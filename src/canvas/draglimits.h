// What holds each family in while it is dragged.
//
// The scale of the containers is always that of twips here, so a drag needs no switch of it. Some families
// would also forget the horizontal move once it is made; as a move goes either right or left, that shows
// nowhere.
#pragma once

#include <span>

#include "canvas/familyref.h"

namespace veneerer {

/// Where a move to the right or down ends.
enum class FarLimit {
  None,
  InsideContainer,    ///< while the right and bottom edges lie inside the container
  TopInsideContainer  ///< the same across; down while the top edge lies inside, whatever the height
};

/// Where a move to the left or up ends: while the edge lies right of, or under, that of the container.
enum class NearLimit {
  None,
  Left,  ///< only a move to the left is held
  LeftAndTop,
};

struct DragRule {
  std::span<const FamilyRef> families;
  NearLimit nearLimit;
  FarLimit farLimit;
  /// The families whose edges the near limit reads, at the index of the dragged element; null for the dragged
  /// element itself. That a label is held by its neighbour's place and not its own is required.
  FamilyRef leftOf = nullptr;
  FamilyRef topOf = nullptr;
};

namespace drag {

inline constexpr FamilyRef kHeldInside[] = {
    kCanvas<&Form1::lvButtons_H1>,  kCanvas<&Form1::lvButtons_H2>,  kCanvas<&Form1::lvButtons_H15>,
    kCanvas<&Form1::lvButtons_H16>, kCanvas<&Form1::lvButtons_H17>, kCanvas<&Form1::lvButtons_H18>,
    kCanvas<&Form1::lvButtons_H21>, kCanvas<&Form1::lvButtons_H35>, kCanvas<&Form1::lvButtons_H37>,
    kCanvas<&Form1::lvButtons_H40>, kCanvas<&Form1::lvButtons_H41>, kCanvas<&Form1::lvButtons_H43>,
    kCanvas<&Form1::lvButtons_H45>, kCanvas<&Form1::lvButtons_H46>, kCanvas<&Form1::lvButtons_H47>,
    kCanvas<&Form1::lvButtons_H48>, kCanvas<&Form1::lvButtons_H49>, kCanvas<&Form1::lvButtons_H50>,
    kCanvas<&Form1::lvButtons_H51>, kCanvas<&Form1::lvButtons_H52>, kCanvas<&Form1::lvButtons_H62>,
    kCanvas<&Form1::Picture1>,      kCanvas<&Form1::Picture2>,      kCanvas<&Form1::Picture4>,
    kCanvas<&Form1::Picture12>,     kCanvas<&Form1::Picture13>,     kCanvas<&Form1::Picture16>,
    kCanvas<&Form1::Picture20>,     kCanvas<&Form1::Picture24>,     kCanvas<&Form1::Picture26>,
    kCanvas<&Form1::Picture28>,     kCanvas<&Form1::Picture29>,     kCanvas<&Form1::Picture30>,
    kCanvas<&Form1::Picture32>,     kCanvas<&Form1::Picture33>,     kCanvas<&Form1::lvButtons_H6>,
    kCanvas<&Form1::lvButtons_H8>,  kCanvas<&Form1::lvButtons_H9>,  kCanvas<&Form1::lvButtons_H10>,
    kCanvas<&Form1::lvButtons_H11>, kCanvas<&Form1::lvButtons_H12>, kCanvas<&Form1::lvButtons_H13>,
    kCanvas<&Form1::lvButtons_H29>, kCanvas<&Form1::lvButtons_H34>, kCanvas<&Form1::lvButtons_H36>,
    kCanvas<&Form1::lvButtons_H59>, kCanvas<&Form1::Picture3>,      kCanvas<&Form1::Picture5>,
    kCanvas<&Form1::Picture6>,      kCanvas<&Form1::Picture8>,      kCanvas<&Form1::Picture11>,
    kCanvas<&Form1::Picture14>,     kCanvas<&Form1::Picture17>,
};

inline constexpr FamilyRef kHeldByTop[] = {
    kCanvas<&Form1::lvButtons_H3>,  kCanvas<&Form1::lvButtons_H4>,  kCanvas<&Form1::lvButtons_H22>,
    kCanvas<&Form1::lvButtons_H23>, kCanvas<&Form1::lvButtons_H38>, kCanvas<&Form1::lvButtons_H39>,
    kCanvas<&Form1::lvButtons_H44>,
};

inline constexpr FamilyRef kHeldAtOrigin[] = {
    kCanvas<&Form1::lvButtons_H14>, kCanvas<&Form1::lvButtons_H25>, kCanvas<&Form1::lvButtons_H26>,
    kCanvas<&Form1::lvButtons_H27>, kCanvas<&Form1::lvButtons_H28>, kCanvas<&Form1::lvButtons_H30>,
    kCanvas<&Form1::lvButtons_H31>, kCanvas<&Form1::lvButtons_H32>, kCanvas<&Form1::lvButtons_H33>,
    kCanvas<&Form1::lvButtons_H42>, kCanvas<&Form1::lvButtons_H57>, kCanvas<&Form1::lvButtons_H58>,
    kCanvas<&Form1::lvButtons_H61>, kCanvas<&Form1::Picture7>,      kCanvas<&Form1::Picture10>,
    kCanvas<&Form1::Picture19>,     kCanvas<&Form1::Picture27>,     kCanvas<&Form1::Picture31>,
};

inline constexpr FamilyRef kFree[] = {
    kCanvas<&Form1::lvButtons_H24>, kCanvas<&Form1::lvButtons_H53>, kCanvas<&Form1::lvButtons_H54>,
    kCanvas<&Form1::lvButtons_H56>, kCanvas<&Form1::lvButtons_H60>, kCanvas<&Form1::Picture15>,
    kCanvas<&Form1::Picture25>,     kCanvas<&Form1::Image2>,
};

inline constexpr FamilyRef kLabels[] = {
    kCanvas<&Form1::Label1>,    kCanvas<&Form1::Label2>,         kCanvas<&Form1::Label3>,
    kCanvas<&Form1::Label4>,    kCanvas<&Form1::Label5>,         kCanvas<&Form1::Label6>,
    kCanvas<&Form1::Label7>,    kCanvas<&Form1::Label8>,         kCanvas<&Form1::Label9>,
    kCanvas<&Form1::Label10>,   kCanvas<&Form1::Label11>,        kCanvas<&Form1::Label12>,
    kCanvas<&Form1::Label13>,   kCanvas<&Form1::Label14>,        kCanvas<&Form1::Label15>,
    kCanvas<&Form1::Label16>,   kCanvas<&Form1::Label17>,        kCanvas<&Form1::Label18>,
    kCanvas<&Form1::Label19>,   kCanvas<&Form1::Label20>,        kCanvas<&Form1::Label21>,
    kCanvas<&Form1::Label22>,   kCanvas<&Form1::Label23>,        kCanvas<&Form1::Label24>,
    kCanvas<&Form1::Label25>,   kCanvas<&Form1::Label26>,        kCanvas<&Form1::Label27>,
    kCanvas<&Form1::Label28>,   kCanvas<&Form1::Label29>,        kCanvas<&Form1::Label30>,
    kCanvas<&Form1::Label31>,   kCanvas<&Form1::Label32>,        kCanvas<&Form1::Label33>,
    kCanvas<&Form1::Label34>,   kCanvas<&Form1::Label38>,        kCanvas<&Form1::Label39>,
    kCanvas<&Form1::Label40>,   kCanvas<&Form1::Label41>,        kCanvas<&Form1::Label42>,
    kCanvas<&Form1::Label43>,   kCanvas<&Form1::Label44>,        kCanvas<&Form1::Label45>,
    kCanvas<&Form1::Label46>,   kCanvas<&Form1::Label52>,        kCanvas<&Form1::Label56>,
    kCanvas<&Form1::Label57>,   kCanvas<&Form1::Label58>,        kCanvas<&Form1::Label59>,
    kCanvas<&Form1::Label61>,   kCanvas<&Form1::Label62>,        kCanvas<&Form1::Label63>,
    kCanvas<&Form1::Label64>,   kCanvas<&Form1::aicAlphaImage1>, kCanvas<&Form1::Picture18>,
    kCanvas<&Form1::ucAniGIF1>,
};

inline constexpr FamilyRef kHistoryRows[] = {
    kCanvas<&Form1::Label47>,
    kCanvas<&Form1::Label48>,
    kCanvas<&Form1::Label49>,
    kCanvas<&Form1::Label50>,
};

inline constexpr FamilyRef kTop20Rows[] = {
    kCanvas<&Form1::Label35>,
    kCanvas<&Form1::Label36>,
    kCanvas<&Form1::Label37>,
};

inline constexpr FamilyRef kInternetTracks[] = {
    kCanvas<&Form1::Label51>,
};

inline constexpr FamilyRef kTrackRows[] = {
    kCanvas<&Form1::Label53>,
    kCanvas<&Form1::Label60>,
};

inline constexpr FamilyRef kFilter[] = {
    kCanvas<&Form1::Label54>,
};

inline constexpr FamilyRef kPageOnFrame[] = {
    kCanvas<&Form1::Label55>,
};

inline constexpr FamilyRef kSearchBy[] = {
    kCanvas<&Form1::lvButtons_H7>,
};

inline constexpr FamilyRef kPopUp[] = {
    kCanvas<&Form1::Picture23>,
};

inline constexpr FamilyRef kTop20Back[] = {
    kCanvas<&Form1::lvButtons_H19>,
};

}  // namespace drag

inline constexpr DragRule kDragRules[] = {
    {drag::kHeldInside, NearLimit::LeftAndTop, FarLimit::InsideContainer},
    {drag::kHeldByTop, NearLimit::LeftAndTop, FarLimit::TopInsideContainer},
    {drag::kHeldAtOrigin, NearLimit::LeftAndTop, FarLimit::None},
    {drag::kLabels, NearLimit::LeftAndTop, FarLimit::None},
    {drag::kFree, NearLimit::None, FarLimit::None},
    {drag::kTop20Back, NearLimit::Left, FarLimit::None},
    {drag::kHistoryRows, NearLimit::LeftAndTop, FarLimit::None, kCanvas<&Form1::Label11>,
     kCanvas<&Form1::Label11>},
    {drag::kTop20Rows, NearLimit::LeftAndTop, FarLimit::None, kCanvas<&Form1::Label8>,
     kCanvas<&Form1::Label8>},
    {drag::kInternetTracks, NearLimit::LeftAndTop, FarLimit::None, kCanvas<&Form1::Label3>,
     kCanvas<&Form1::Label3>},
    {drag::kTrackRows, NearLimit::LeftAndTop, FarLimit::None, nullptr, kCanvas<&Form1::Label1>},
    {drag::kFilter, NearLimit::LeftAndTop, FarLimit::None, kCanvas<&Form1::Label5>, kCanvas<&Form1::Label5>},
    {drag::kPageOnFrame, NearLimit::LeftAndTop, FarLimit::None, kCanvas<&Form1::Label41>,
     kCanvas<&Form1::Label41>},
    {drag::kSearchBy, NearLimit::LeftAndTop, FarLimit::InsideContainer, kCanvas<&Form1::lvButtons_H6>,
     kCanvas<&Form1::lvButtons_H6>},
    {drag::kPopUp, NearLimit::LeftAndTop, FarLimit::None, kCanvas<&Form1::Picture21>,
     kCanvas<&Form1::Picture21>},
};

}  // namespace veneerer
