// Which members of a family each geometry tool moves.
//
// The ranges are the tools' own: they are neither the size of the array nor the same from tool to tool, and
// some run past the end of their array, where the command stops. All of that is required. A tool accepts a
// Section when its family has a range in the tool's column; any other Section it leaves alone.
#pragma once

#include "canvas/familyref.h"

namespace veneerer {

enum class GeometryTool {
  Size,    ///< "Make Buttons Same Size"
  Shift,   ///< "Shift X", "Shift Y"
  Align,   ///< "Align X", "Align Y"
  Space,   ///< "Space X", "Space Y"
  Grid,    ///< "Snap To Grid"
  Styles,  ///< "Copy Styles To All Buttons"
  Clear,   ///< "Clear Button Images"
};

inline constexpr int kGeometryToolCount = static_cast<int>(GeometryTool::Clear) + 1;

/// Indices from first to last, both inclusive; {} for none.
struct IndexRange {
  int first = 0;
  int last = -1;

  constexpr bool isEmpty() const { return last < first; }
  constexpr bool holds(int index) const { return index >= first && index <= last; }
};

struct FamilyRanges {
  FamilyRef family;
  IndexRange ranges[kGeometryToolCount];

  constexpr IndexRange of(GeometryTool tool) const { return ranges[static_cast<int>(tool)]; }
};

// clang-format off
inline constexpr FamilyRanges kFamilyRanges[] = {
    // Family                          Size      Shift     Align    Space    Grid      Styles    Clear
    {kCanvas<&Form1::Image2>,         {{0, 27},  {0, 19},  {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label1>,         {{0, 19},  {0, 12},  {0, 19}, {1, 12}, {},       {},       {}}},
    {kCanvas<&Form1::Label2>,         {{},       {0, 3},   {0, 3},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label3>,         {{0, 19},  {0, 12},  {0, 19}, {1, 12}, {},       {},       {}}},
    {kCanvas<&Form1::Label6>,         {{},       {0, 1},   {0, 1},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label8>,         {{0, 9},   {0, 9},   {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label9>,         {{0, 27},  {0, 19},  {},      {1, 50}, {},       {},       {}}},
    {kCanvas<&Form1::Label10>,        {{0, 27},  {0, 19},  {},      {1, 50}, {},       {},       {}}},
    {kCanvas<&Form1::Label11>,        {{0, 8},   {0, 8},   {0, 8},  {1, 8},  {},       {},       {}}},
    {kCanvas<&Form1::Label14>,        {{0, 6},   {0, 6},   {0, 6},  {1, 6},  {},       {},       {}}},
    {kCanvas<&Form1::Label15>,        {{0, 6},   {0, 6},   {0, 6},  {1, 6},  {},       {},       {}}},
    {kCanvas<&Form1::Label16>,        {{0, 6},   {0, 6},   {0, 6},  {1, 6},  {},       {},       {}}},
    {kCanvas<&Form1::Label17>,        {{0, 6},   {0, 6},   {0, 6},  {1, 6},  {},       {},       {}}},
    {kCanvas<&Form1::Label19>,        {{0, 11},  {0, 11},  {0, 11}, {},      {},       {},       {}}},
    {kCanvas<&Form1::Label20>,        {{0, 27},  {0, 27},  {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label21>,        {{0, 3},   {0, 3},   {0, 3},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label23>,        {{0, 4},   {0, 4},   {0, 4},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label24>,        {{0, 4},   {0, 4},   {0, 4},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label25>,        {{0, 4},   {0, 4},   {0, 4},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label26>,        {{0, 4},   {0, 4},   {0, 4},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label28>,        {{},       {0, 1},   {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label30>,        {{0, 9},   {0, 9},   {},      {1, 9},  {},       {},       {}}},
    {kCanvas<&Form1::Label31>,        {{0, 9},   {0, 9},   {0, 9},  {1, 9},  {},       {},       {}}},
    {kCanvas<&Form1::Label33>,        {{0, 7},   {},       {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label34>,        {{0, 2},   {},       {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label35>,        {{0, 9},   {0, 9},   {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label36>,        {{0, 9},   {0, 9},   {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label37>,        {{0, 9},   {0, 9},   {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label40>,        {{0, 5},   {0, 5},   {0, 5},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label43>,        {{},       {0, 5},   {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label44>,        {{0, 9},   {},       {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label45>,        {{},       {0, 9},   {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label47>,        {{0, 8},   {0, 8},   {0, 8},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label48>,        {{0, 8},   {0, 8},   {0, 8},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label49>,        {{0, 8},   {0, 8},   {0, 8},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label50>,        {{0, 8},   {0, 8},   {0, 8},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label51>,        {{0, 1},   {0, 6},   {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label53>,        {{},       {0, 1},   {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label59>,        {{0, 27},  {},       {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label60>,        {{0, 19},  {0, 19},  {0, 19}, {},      {},       {},       {}}},
    {kCanvas<&Form1::Label61>,        {{0, 4},   {0, 4},   {0, 4},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Label62>,        {{0, 27},  {},       {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label63>,        {{0, 27},  {},       {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Label64>,        {{0, 9},   {},       {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture1>,       {{0, 11},  {0, 11},  {0, 11}, {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture5>,       {{0, 8},   {0, 8},   {0, 8},  {1, 8},  {},       {},       {}}},
    {kCanvas<&Form1::Picture7>,       {{0, 6},   {0, 6},   {0, 6},  {1, 6},  {},       {},       {}}},
    {kCanvas<&Form1::Picture10>,      {{},       {0, 4},   {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture11>,      {{0, 9},   {0, 9},   {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture14>,      {{0, 9},   {0, 9},   {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture15>,      {{0, 9},   {0, 9},   {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture16>,      {{0, 5},   {0, 5},   {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture19>,      {{0, 9},   {},       {0, 9},  {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture20>,      {{0, 27},  {0, 27},  {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture26>,      {{0, 111}, {},       {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture27>,      {{0, 11},  {0, 11},  {0, 11}, {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture30>,      {{},       {0, 8},   {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::Picture31>,      {{0, 6},   {},       {0, 6},  {},      {},       {},       {}}},
    {kCanvas<&Form1::aicAlphaImage1>, {{0, 19},  {},       {0, 19}, {},      {},       {},       {}}},
    {kCanvas<&Form1::lvButtons_H1>,   {{0, 12},  {0, 11},  {0, 11}, {1, 11}, {},       {0, 12},  {0, 9}}},
    {kCanvas<&Form1::lvButtons_H2>,   {{0, 2},   {},       {},      {},      {},       {0, 2},   {}}},
    {kCanvas<&Form1::lvButtons_H3>,   {{0, 2},   {0, 2},   {0, 2},  {},      {},       {0, 2},   {}}},
    {kCanvas<&Form1::lvButtons_H4>,   {{0, 6},   {},       {0, 7},  {},      {},       {0, 6},   {}}},
    {kTools<&Form6::lvButtons_H5>,    {{0, 1},   {},       {},      {},      {},       {0, 1},   {}}},
    {kCanvas<&Form1::lvButtons_H6>,   {{0, 25},  {0, 27},  {},      {},      {0, 27},  {0, 25},  {}}},
    {kCanvas<&Form1::lvButtons_H7>,   {{0, 3},   {0, 3},   {0, 3},  {},      {},       {0, 3},   {}}},
    {kCanvas<&Form1::lvButtons_H8>,   {{0, 1},   {0, 1},   {0, 1},  {},      {},       {0, 1},   {0, 1}}},
    {kCanvas<&Form1::lvButtons_H10>,  {{},       {0, 1},   {0, 1},  {},      {},       {},       {}}},
    {kCanvas<&Form1::lvButtons_H12>,  {{0, 2},   {},       {0, 4},  {},      {},       {0, 2},   {}}},
    {kCanvas<&Form1::lvButtons_H13>,  {{0, 1},   {0, 1},   {0, 1},  {},      {},       {0, 1},   {0, 1}}},
    {kCanvas<&Form1::lvButtons_H16>,  {{0, 1},   {0, 1},   {0, 1},  {},      {},       {0, 1},   {0, 1}}},
    {kCanvas<&Form1::lvButtons_H17>,  {{0, 1},   {0, 1},   {0, 1},  {},      {},       {0, 1},   {0, 1}}},
    {kCanvas<&Form1::lvButtons_H18>,  {{0, 1},   {0, 1},   {0, 1},  {},      {},       {0, 1},   {}}},
    {kCanvas<&Form1::lvButtons_H22>,  {{0, 25},  {},       {},      {},      {0, 25},  {0, 25},  {0, 25}}},
    {kCanvas<&Form1::lvButtons_H23>,  {{0, 1},   {},       {},      {},      {},       {0, 1},   {0, 1}}},
    {kCanvas<&Form1::lvButtons_H24>,  {{0, 4},   {0, 4},   {0, 4},  {},      {},       {0, 4},   {}}},
    {kCanvas<&Form1::lvButtons_H25>,  {{0, 2},   {0, 2},   {0, 2},  {},      {},       {0, 2},   {}}},
    {kCanvas<&Form1::lvButtons_H28>,  {{0, 3},   {},       {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::lvButtons_H29>,  {{0, 2},   {0, 1},   {},      {},      {},       {0, 2},   {}}},
    {kCanvas<&Form1::lvButtons_H30>,  {{0, 9},   {0, 9},   {0, 9},  {},      {},       {0, 8},   {}}},
    {kCanvas<&Form1::lvButtons_H34>,  {{0, 1},   {0, 1},   {0, 1},  {},      {},       {0, 1},   {0, 4}}},
    {kCanvas<&Form1::lvButtons_H35>,  {{},       {},       {},      {},      {0, 30},  {},       {}}},
    {kCanvas<&Form1::lvButtons_H36>,  {{0, 9},   {0, 9},   {0, 9},  {},      {0, 9},   {0, 9},   {}}},
    {kCanvas<&Form1::lvButtons_H37>,  {{0, 7},   {0, 7},   {0, 7},  {},      {},       {0, 7},   {0, 7}}},
    {kCanvas<&Form1::lvButtons_H38>,  {{0, 26},  {0, 26},  {0, 26}, {},      {},       {0, 26},  {}}},
    {kCanvas<&Form1::lvButtons_H39>,  {{0, 9},   {},       {},      {},      {},       {0, 9},   {}}},
    {kCanvas<&Form1::lvButtons_H41>,  {{0, 7},   {0, 7},   {0, 7},  {},      {},       {0, 7},   {}}},
    {kCanvas<&Form1::lvButtons_H42>,  {{0, 2},   {0, 2},   {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::lvButtons_H43>,  {{1, 9},   {0, 10},  {},      {},      {},       {0, 9},   {}}},
    {kCanvas<&Form1::lvButtons_H44>,  {{0, 66},  {0, 66},  {},      {},      {0, 66},  {0, 66},  {}}},
    {kCanvas<&Form1::lvButtons_H46>,  {{0, 2},   {0, 2},   {0, 2},  {},      {},       {},       {}}},
    {kCanvas<&Form1::lvButtons_H48>,  {{0, 11},  {0, 11},  {0, 11}, {},      {},       {0, 11},  {}}},
    {kCanvas<&Form1::lvButtons_H49>,  {{0, 5},   {},       {},      {},      {},       {0, 5},   {}}},
    {kCanvas<&Form1::lvButtons_H51>,  {{0, 37},  {0, 39},  {},      {},      {0, 39},  {0, 39},  {}}},
    {kCanvas<&Form1::lvButtons_H52>,  {{0, 2},   {},       {},      {},      {},       {0, 2},   {}}},
    {kCanvas<&Form1::lvButtons_H53>,  {{0, 2},   {},       {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::lvButtons_H54>,  {{0, 9},   {},       {},      {},      {},       {0, 9},   {}}},
    {kCanvas<&Form1::lvButtons_H56>,  {{0, 25},  {0, 39},  {},      {},      {0, 39},  {0, 39},  {}}},
    {kCanvas<&Form1::lvButtons_H58>,  {{0, 37},  {0, 37},  {},      {},      {0, 37},  {0, 37},  {}}},
    {kCanvas<&Form1::lvButtons_H60>,  {{10, 52}, {10, 50}, {},      {},      {10, 52}, {10, 52}, {}}},
    {kCanvas<&Form1::lvButtons_H61>,  {{0, 2},   {},       {},      {},      {},       {},       {}}},
    {kCanvas<&Form1::lvButtons_H62>,  {{0, 26},  {0, 26},  {},      {},      {0, 26},  {0, 26},  {}}},
    {kCanvas<&Form1::ucAniGIF1>,      {{0, 27},  {0, 19},  {},      {},      {},       {},       {}}},
};
// clang-format on

/// The range of the Y command where it differs from that of the X command.
struct DownRange {
  GeometryTool tool;
  FamilyRef family;
  IndexRange range;
};

inline constexpr DownRange kDownRanges[] = {
    {GeometryTool::Shift, kCanvas<&Form1::Label9>, {0, 20}},
    {GeometryTool::Shift, kCanvas<&Form1::Label10>, {0, 20}},
    {GeometryTool::Shift, kCanvas<&Form1::Label11>, {0, 11}},
    {GeometryTool::Shift, kCanvas<&Form1::Label21>, {0, 4}},
    {GeometryTool::Shift, kCanvas<&Form1::Picture10>, {0, 27}},
    {GeometryTool::Shift, kCanvas<&Form1::lvButtons_H1>, {0, 12}},
    {GeometryTool::Shift, kCanvas<&Form1::lvButtons_H29>, {0, 2}},
    {GeometryTool::Align, kCanvas<&Form1::lvButtons_H1>, {0, 12}},
};

/// Families of two halves, of which the tool moves the one that holds ElementIndex; the first half stands in
/// the table above.
struct SecondHalf {
  GeometryTool tool;
  FamilyRef family;
  IndexRange range;
};

inline constexpr SecondHalf kSecondHalves[] = {
    {GeometryTool::Size, kCanvas<&Form1::Label64>, {10, 19}},
    {GeometryTool::Align, kCanvas<&Form1::Label64>, {10, 19}},
    {GeometryTool::Size, kCanvas<&Form1::lvButtons_H56>, {30, 39}},
};

/// Sections whose command reaches into another Section's family, required so: with a history button in hand
/// the two buttons of the letter screen lose their pictures, and with a title of the decades screen in hand
/// its chart rows are aligned, which their own Section doesn't do.
struct CrossedRange {
  GeometryTool tool;
  FamilyRef inHand;
  FamilyRef family;
  IndexRange range;
};

inline constexpr CrossedRange kCrossedRanges[] = {
    {GeometryTool::Clear, kCanvas<&Form1::lvButtons_H24>, kCanvas<&Form1::lvButtons_H23>, {0, 4}},
    {GeometryTool::Align, kCanvas<&Form1::Label28>, kCanvas<&Form1::Label30>, {0, 9}},
};

}  // namespace veneerer
