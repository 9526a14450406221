#include "canvas/sections.h"

#include <algorithm>
#include <utility>

namespace veneerer {

namespace {

constexpr bool kClearsIndex = true;

// What the Sections of a kind have in common.
constexpr ToolFields kPicture = {ToolField::Size};
constexpr ToolFields kColouredPicture = kPicture | ToolField::Colour;
constexpr ToolFields kSample = {ToolField::Colour};
constexpr ToolFields kFlatWordlessButton = kColouredPicture | ToolField::Shape | ToolField::Style;
constexpr ToolFields kFlatButton = kFlatWordlessButton | ToolField::Caption;
constexpr ToolFields kWordlessButton = kFlatWordlessButton | ToolField::Gradient;
constexpr ToolFields kButton = kFlatButton | ToolField::Gradient;
constexpr ToolFields kShownFontSize = {ToolField::ShownFontSize};
constexpr ToolFields kPlainLabel =
    kColouredPicture | ToolField::Alignment | ToolField::FontSize | ToolField::ShownFontSize;
constexpr ToolFields kLabel = kPlainLabel | ToolField::FontName | ToolField::FontDialog;
constexpr ToolFields kUnalignedLabel = kLabel.without(ToolField::Alignment);

// What each of them has of its own: the tools' lists follow no rule.
constexpr ToolFields kTyped = {ToolField::TypedColour};
constexpr ToolFields kShown = {ToolField::ShownColour};
constexpr ToolFields kPlaced = {ToolField::Place};
constexpr ToolFields kCopiedColour = {ToolField::CopiedColours};
constexpr ToolFields kCopiedFontSize = {ToolField::CopiedFontSize};
constexpr ToolFields kCopiedFont = kCopiedFontSize | ToolField::CopiedFontName;
constexpr ToolFields kCopied = kCopiedColour | kCopiedFont;

// clang-format off
constexpr Section kSections[] = {
    {1, kCanvas<&Form1::lvButtons_H1>, kButton | kTyped | kShown | kCopiedColour},
    {2, kCanvas<&Form1::lvButtons_H2>, kButton | kTyped | kShown | kCopiedColour},
    {3, kCanvas<&Form1::lvButtons_H3>, kButton | kTyped | kShown | kCopiedColour},
    {4, kCanvas<&Form1::lvButtons_H4>, kButton | kTyped | kShown | kCopiedColour},
    {5, kTools<&Form6::Label5>, kSample | kTyped | kShown},
    {6, kTools<&Form6::Label6>, kSample | kShown | kCopiedColour},
    {8, kTools<&Form6::lvButtons_H5>, kFlatWordlessButton | kCopiedColour},
    {9, kCanvas<&Form1::lvButtons_H6>, kButton | kShown | kCopiedColour},
    {10, kCanvas<&Form1::lvButtons_H7>, kFlatButton | kShown | kCopiedColour},
    {11, kCanvas<&Form1::Label32>, kLabel.without(kShownFontSize) | kShown},
    {12, kCanvas<&Form1::lvButtons_H9>, kFlatButton | kCopiedColour},
    {13, kCanvas<&Form1::Label7>, kLabel | kCopied},
    {14, kCanvas<&Form1::Picture3>, kPicture},
    {16, kCanvas<&Form1::Label6>, kLabel | kCopied},
    {18, kCanvas<&Form1::lvButtons_H8>, kButton | kCopiedColour},
    {19, kCanvas<&Form1::lvButtons_H10>, kButton | kCopiedColour},
    {20, kCanvas<&Form1::Picture8>, kPicture, kClearsIndex},
    {21, kCanvas<&Form1::Label2>, kLabel | kCopied},
    {22, kCanvas<&Form1::Label1>, kLabel | kCopied},
    {23, kCanvas<&Form1::Picture11>, kColouredPicture | kCopiedColour},
    {24, kCanvas<&Form1::lvButtons_H13>, kButton | kCopiedColour},
    {25, kCanvas<&Form1::Picture14>, kPicture},
    {26, kCanvas<&Form1::Label42>, kLabel},
    {28, kCanvas<&Form1::lvButtons_H16>, kButton | kCopiedColour},
    {29, kCanvas<&Form1::lvButtons_H17>, kButton | kCopiedColour},
    {30, kCanvas<&Form1::Label28>, kLabel | kCopied},
    {31, kCanvas<&Form1::Label30>, kLabel | kCopied},
    {32, kCanvas<&Form1::Picture2>, kColouredPicture},
    {33, kCanvas<&Form1::Label3>, kLabel | kCopied},
    {34, kCanvas<&Form1::lvButtons_H12>, kButton | kShown | kCopiedColour},
    {35, kCanvas<&Form1::lvButtons_H11>, kButton | kShown | kCopiedColour},
    {36, kCanvas<&Form1::Label8>, kLabel | kCopied},
    {37, kCanvas<&Form1::lvButtons_H19>, kButton | kCopiedColour},
    {38, kCanvas<&Form1::Label4>, kLabel | kTyped | kShown | kCopied},
    {39, kCanvas<&Form1::Label5>, kLabel | kShown},
    {40, kCanvas<&Form1::lvButtons_H18>, kWordlessButton | kCopiedColour},
    {41, kCanvas<&Form1::lvButtons_H22>, kWordlessButton | kShown | kCopiedColour},
    {42, kCanvas<&Form1::lvButtons_H23>, kWordlessButton | kShown | kCopiedColour},
    {43, kCanvas<&Form1::lvButtons_H24>, kButton | kShown | kCopiedColour},
    {44, kCanvas<&Form1::Label11>, kLabel | kCopied},
    {45, kCanvas<&Form1::Label12>, kPlainLabel, kClearsIndex},
    {46, kCanvas<&Form1::Picture5>, kColouredPicture | kShown | kCopiedColour},
    {47, kCanvas<&Form1::Picture13>, kPicture | kShown},
    {48, kCanvas<&Form1::lvButtons_H5>, kFlatButton},
    {49, kCanvas<&Form1::Label19>, kLabel | kShown | kCopied},
    {50, kCanvas<&Form1::Label14>, kLabel | kCopied},
    {51, kCanvas<&Form1::Label15>, kLabel | kCopied},
    {52, kCanvas<&Form1::Label16>, kLabel | kCopied},
    {53, kCanvas<&Form1::Label17>, kLabel | kCopied},
    {54, kCanvas<&Form1::Label18>, kLabel},
    {55, kCanvas<&Form1::lvButtons_H28>, kButton | kCopiedColour},
    {56, kCanvas<&Form1::lvButtons_H26>, kButton | kCopiedColour},
    {57, kCanvas<&Form1::lvButtons_H27>, kButton},
    {58, kCanvas<&Form1::Picture7>, kPicture},
    {59, kCanvas<&Form1::lvButtons_H29>, kButton | kTyped | kShown | kCopiedColour},
    {60, kCanvas<&Form1::lvButtons_H30>, kButton | kTyped | kShown | kCopiedColour},
    {61, kCanvas<&Form1::lvButtons_H31>, kButton},
    {62, kCanvas<&Form1::lvButtons_H32>, kButton},
    {63, kCanvas<&Form1::lvButtons_H33>, kWordlessButton},
    {64, kCanvas<&Form1::lvButtons_H34>, kButton | kCopiedColour},
    {65, kCanvas<&Form1::Label20>, kLabel | kCopied},
    {66, kCanvas<&Form1::lvButtons_H35>, kButton | kCopiedColour},
    {67, kCanvas<&Form1::lvButtons_H36>, kButton | kCopiedColour},
    {68, kCanvas<&Form1::Label13>, kLabel | kTyped},
    {69, kCanvas<&Form1::lvButtons_H37>, kButton | kCopiedColour},
    {70, kCanvas<&Form1::Label23>, kLabel | kCopiedColour},
    {71, kCanvas<&Form1::Label24>, kLabel | kCopiedColour},
    {72, kCanvas<&Form1::Label25>, kLabel | kCopiedColour},
    {73, kCanvas<&Form1::Label26>, kLabel | kCopiedColour},
    {74, kCanvas<&Form1::Label22>, kLabel | kCopiedColour},
    {75, kCanvas<&Form1::Label21>, kLabel | kCopiedColour},
    {76, kCanvas<&Form1::Picture6>, kPicture},
    {77, kCanvas<&Form1::lvButtons_H21>, kButton},
    {78, kCanvas<&Form1::lvButtons_H25>, kButton | kShown | kCopiedColour},
    {79, kCanvas<&Form1::lvButtons_H38>, kButton | kShown | kCopiedColour},
    {80, kCanvas<&Form1::lvButtons_H39>, kWordlessButton | kShown | kCopiedColour},
    {81, kCanvas<&Form1::Label27>, kLabel},
    {82, kCanvas<&Form1::Picture15>, kPicture},
    {83, kCanvas<&Form1::Label31>, kLabel | kCopied},
    {84, kCanvas<&Form1::Picture10>, kPicture},
    {85, kCanvas<&Form1::lvButtons_H40>, kWordlessButton},
    {86, kCanvas<&Form1::lvButtons_H41>, kButton | kShown | kCopiedColour},
    {87, kCanvas<&Form1::Label33>, kLabel | kCopied},
    {88, kCanvas<&Form1::Label34>, kLabel | kCopied},
    {89, kCanvas<&Form1::Picture4>, kPicture, kClearsIndex},
    {90, kCanvas<&Form1::lvButtons_H42>, kButton | kCopiedColour},
    {91, kCanvas<&Form1::Label35>, kLabel | kCopied},
    {92, kCanvas<&Form1::Label36>, kLabel | kCopied},
    {93, kCanvas<&Form1::Label37>, kLabel | kCopied},
    {94, kCanvas<&Form1::lvButtons_H43>, kWordlessButton | kCopiedColour},
    {95, kCanvas<&Form1::Label38>, kLabel},
    {96, kCanvas<&Form1::Label39>, kLabel, kClearsIndex},
    {97, kCanvas<&Form1::Label40>, kLabel | kCopiedColour},
    {98, kCanvas<&Form1::lvButtons_H44>, kButton | kCopiedColour},
    {99, kCanvas<&Form1::Label41>, kLabel, kClearsIndex},
    {100, kCanvas<&Form1::Picture16>, kPicture},
    {101, kCanvas<&Form1::Picture1>, kPicture | kPlaced},
    {102, kCanvas<&Form1::Label43>, kLabel | kCopied},
    {103, kCanvas<&Form1::lvButtons_H14>, kButton},
    {104, kCanvas<&Form1::lvButtons_H15>, kFlatButton},
    {105, kCanvas<&Form1::lvButtons_H46>, kFlatButton | kCopiedColour},
    {110, kCanvas<&Form1::Image2>, kPicture},
    {111, kCanvas<&Form1::ucAniGIF1>, kPicture},
    {112, kCanvas<&Form1::Label9>, kLabel | kCopied},
    {113, kCanvas<&Form1::Label10>, kLabel | kCopied},
    {114, kCanvas<&Form1::Picture20>, kPicture},
    {115, kCanvas<&Form1::Label46>, kLabel},
    {116, kCanvas<&Form1::lvButtons_H52>, kWordlessButton},
    {117, kCanvas<&Form1::Label45>, kLabel | kCopied},
    {118, kCanvas<&Form1::Picture23>, kPicture, kClearsIndex},
    {119, kCanvas<&Form1::lvButtons_H54>, kFlatWordlessButton | kCopiedColour},
    {120, kCanvas<&Form1::lvButtons_H45>, kWordlessButton},
    {121, kCanvas<&Form1::lvButtons_H48>, kButton | kCopiedColour},
    {122, kCanvas<&Form1::lvButtons_H47>, kFlatButton},
    {123, kCanvas<&Form1::Picture17>, kPicture, kClearsIndex},
    {124, kCanvas<&Form1::Picture18>, kPicture},
    {125, kCanvas<&Form1::lvButtons_H49>, kButton | kCopiedColour},
    {126, kCanvas<&Form1::Label44>, kLabel | kCopied},
    {127, kCanvas<&Form1::Picture19>, kPicture},
    {128, kCanvas<&Form1::lvButtons_H50>, kButton},
    {129, kCanvas<&Form1::lvButtons_H51>, kWordlessButton | kCopiedColour},
    {130, kCanvas<&Form1::Label47>, kLabel | kCopied},
    {131, kCanvas<&Form1::Label48>, kLabel | kCopied},
    {132, kCanvas<&Form1::Label49>, kLabel | kCopied},
    {133, kCanvas<&Form1::Label50>, kLabel | kCopied},
    {134, kCanvas<&Form1::lvButtons_H53>, kButton | kCopiedColour},
    {135, kCanvas<&Form1::Label51>, kLabel | kCopiedColour},
    {136, kCanvas<&Form1::Label52>, kLabel.without(kShownFontSize)},
    {137, kCanvas<&Form1::lvButtons_H56>, kButton | kShown | kCopiedColour | kPlaced},
    {138, kCanvas<&Form1::Label53>, kLabel | kCopiedFontSize | kPlaced},
    {139, kCanvas<&Form1::Picture24>, kColouredPicture, kClearsIndex},
    {140, kCanvas<&Form1::Label54>, kLabel},
    {149, kCanvas<&Form1::Label64>, kLabel | kCopiedColour | kCopiedFontSize},
    {150, kCanvas<&Form1::lvButtons_H57>, kWordlessButton},
    {151, kCanvas<&Form1::Label55>, kUnalignedLabel},
    {152, kCanvas<&Form1::lvButtons_H58>, kButton | kCopiedColour},
    {153, kCanvas<&Form1::Label56>, kUnalignedLabel.without(kShownFontSize) | kCopiedFont},
    {154, kCanvas<&Form1::lvButtons_H59>, kWordlessButton},
    {155, kCanvas<&Form1::lvButtons_H60>, kWordlessButton | kCopiedColour},
    {156, kCanvas<&Form1::Label58>, kUnalignedLabel | kCopied},
    {157, kCanvas<&Form1::Picture25>, kPicture},
    {158, kCanvas<&Form1::Label59>, kLabel | kCopied},
    {160, kCanvas<&Form1::Label60>, kUnalignedLabel | kCopied},
    {161, kCanvas<&Form1::Picture26>, kPicture},
    {162, kCanvas<&Form1::Picture27>, kPicture},
    {163, kCanvas<&Form1::Label61>, kUnalignedLabel | kCopiedColour},
    {165, kCanvas<&Form1::Picture31>, kPicture},
    {170, kCanvas<&Form1::Label62>, kLabel.without(kShownFontSize) | kCopied},
    {171, kCanvas<&Form1::Label63>, kLabel.without(kShownFontSize) | kCopied},
    {172, kCanvas<&Form1::lvButtons_H61>, kButton},
    {173, kCanvas<&Form1::Picture30>, kPicture | kPlaced},
    {179, kCanvas<&Form1::aicAlphaImage1>, kPicture},
    {180, kCanvas<&Form1::Picture32>, kPicture, kClearsIndex},
    {181, kCanvas<&Form1::lvButtons_H62>, kFlatButton},
    {182, kCanvas<&Form1::Picture33>, kPicture, kClearsIndex},
    {189, kCanvas<&Form1::Picture28>, kColouredPicture, kClearsIndex},
    {190, kCanvas<&Form1::Picture29>, kPicture, kClearsIndex},
};
// clang-format on

}  // namespace

std::span<const Section> sections() {
  return kSections;
}

const Section* findSection(int number) {
  const auto found = std::ranges::lower_bound(kSections, number, {}, &Section::number);
  return found != std::end(kSections) && found->number == number ? found : nullptr;
}

int sectionOf(const State& state, const Family& family) {
  const auto found =
      std::ranges::find_if(kSections, [&](const Section& s) { return &s.family(state) == &family; });
  return found == std::end(kSections) ? 0 : found->number;
}

Family* familyOfSection(State& state, int number) {
  const Section* section = findSection(number);
  return section ? &section->family(state) : nullptr;
}

bool isInHand(const State& state, FamilyRef family) {
  const Section* section = findSection(state.globals.SectionNumber);
  return section && &section->family(state) == &family(state);
}

const Element* currentElement(const State& state) {
  const Section* section = findSection(state.globals.SectionNumber);
  if (!section) return nullptr;
  const Family& family = section->family(state);
  return family.find(family.isArray() ? state.globals.ElementIndex : 0);
}

Element* currentElement(State& state) {
  return const_cast<Element*>(currentElement(std::as_const(state)));
}

bool isServed(const State& state, ToolField field) {
  const Section* section = findSection(state.globals.SectionNumber);
  return section && section->fields.has(field);
}

Element* currentElement(State& state, ToolField field) {
  return isServed(state, field) ? currentElement(state) : nullptr;
}

}  // namespace veneerer
