#include "canvas/sections.h"

#include <algorithm>

namespace veneerer {

namespace {

constexpr bool kClearsIndex = true;

constexpr Section kSections[] = {
    {1, kCanvas<&Form1::lvButtons_H1>, "CZSYGK"},
    {2, kCanvas<&Form1::lvButtons_H2>, "CZSYGK"},
    {3, kCanvas<&Form1::lvButtons_H3>, "CZSYGK"},
    {4, kCanvas<&Form1::lvButtons_H4>, "CZSYGK"},
    {5, kTools<&Form6::Label5>, "K"},
    {6, kTools<&Form6::Label6>, "K"},
    {8, kTools<&Form6::lvButtons_H5>, "ZSYK"},
    {9, kCanvas<&Form1::lvButtons_H6>, "CZSYGK"},
    {10, kCanvas<&Form1::lvButtons_H7>, "CZSYK"},
    {11, kCanvas<&Form1::Label32>, "ZAKFND"},
    {12, kCanvas<&Form1::lvButtons_H9>, "CZSYK"},
    {13, kCanvas<&Form1::Label7>, "ZAKFND"},
    {14, kCanvas<&Form1::Picture3>, "Z"},
    {16, kCanvas<&Form1::Label6>, "ZAKFND"},
    {18, kCanvas<&Form1::lvButtons_H8>, "CZSYGK"},
    {19, kCanvas<&Form1::lvButtons_H10>, "CZSYGK"},
    {20, kCanvas<&Form1::Picture8>, "Z", kClearsIndex},
    {21, kCanvas<&Form1::Label2>, "ZAKFND"},
    {22, kCanvas<&Form1::Label1>, "ZAKFND"},
    {23, kCanvas<&Form1::Picture11>, "ZK"},
    {24, kCanvas<&Form1::lvButtons_H13>, "CZSYGK"},
    {25, kCanvas<&Form1::Picture14>, "Z"},
    {26, kCanvas<&Form1::Label42>, "ZAKFND"},
    {28, kCanvas<&Form1::lvButtons_H16>, "CZSYGK"},
    {29, kCanvas<&Form1::lvButtons_H17>, "CZSYGK"},
    {30, kCanvas<&Form1::Label28>, "ZAKFND"},
    {31, kCanvas<&Form1::Label30>, "ZAKFND"},
    {32, kCanvas<&Form1::Picture2>, "ZK"},
    {33, kCanvas<&Form1::Label3>, "ZAKFND"},
    {34, kCanvas<&Form1::lvButtons_H12>, "CZSYGK"},
    {35, kCanvas<&Form1::lvButtons_H11>, "CZSYGK"},
    {36, kCanvas<&Form1::Label8>, "ZAKFND"},
    {37, kCanvas<&Form1::lvButtons_H19>, "CZSYGK"},
    {38, kCanvas<&Form1::Label4>, "ZAKFND"},
    {39, kCanvas<&Form1::Label5>, "ZAKFND"},
    {40, kCanvas<&Form1::lvButtons_H18>, "ZSYGK"},
    {41, kCanvas<&Form1::lvButtons_H22>, "ZSYGK"},
    {42, kCanvas<&Form1::lvButtons_H23>, "ZSYGK"},
    {43, kCanvas<&Form1::lvButtons_H24>, "CZSYGK"},
    {44, kCanvas<&Form1::Label11>, "ZAKFND"},
    {45, kCanvas<&Form1::Label12>, "ZAKF", kClearsIndex},
    {46, kCanvas<&Form1::Picture5>, "ZK"},
    {47, kCanvas<&Form1::Picture13>, "Z"},
    {48, kCanvas<&Form1::lvButtons_H5>, "CZSYK"},
    {49, kCanvas<&Form1::Label19>, "ZAKFND"},
    {50, kCanvas<&Form1::Label14>, "ZAKFND"},
    {51, kCanvas<&Form1::Label15>, "ZAKFND"},
    {52, kCanvas<&Form1::Label16>, "ZAKFND"},
    {53, kCanvas<&Form1::Label17>, "ZAKFND"},
    {54, kCanvas<&Form1::Label18>, "ZAKFND"},
    {55, kCanvas<&Form1::lvButtons_H28>, "CZSYGK"},
    {56, kCanvas<&Form1::lvButtons_H26>, "CZSYGK"},
    {57, kCanvas<&Form1::lvButtons_H27>, "CZSYGK"},
    {58, kCanvas<&Form1::Picture7>, "Z"},
    {59, kCanvas<&Form1::lvButtons_H29>, "CZSYGK"},
    {60, kCanvas<&Form1::lvButtons_H30>, "CZSYGK"},
    {61, kCanvas<&Form1::lvButtons_H31>, "CZSYGK"},
    {62, kCanvas<&Form1::lvButtons_H32>, "CZSYGK"},
    {63, kCanvas<&Form1::lvButtons_H33>, "ZSYGK"},
    {64, kCanvas<&Form1::lvButtons_H34>, "CZSYGK"},
    {65, kCanvas<&Form1::Label20>, "ZAKFND"},
    {66, kCanvas<&Form1::lvButtons_H35>, "CZSYGK"},
    {67, kCanvas<&Form1::lvButtons_H36>, "CZSYGK"},
    {68, kCanvas<&Form1::Label13>, "ZAKFND"},
    {69, kCanvas<&Form1::lvButtons_H37>, "CZSYGK"},
    {70, kCanvas<&Form1::Label23>, "ZAKFND"},
    {71, kCanvas<&Form1::Label24>, "ZAKFND"},
    {72, kCanvas<&Form1::Label25>, "ZAKFND"},
    {73, kCanvas<&Form1::Label26>, "ZAKFND"},
    {74, kCanvas<&Form1::Label22>, "ZAKFND"},
    {75, kCanvas<&Form1::Label21>, "ZAKFND"},
    {76, kCanvas<&Form1::Picture6>, "Z"},
    {77, kCanvas<&Form1::lvButtons_H21>, "CZSYGK"},
    {78, kCanvas<&Form1::lvButtons_H25>, "CZSYGK"},
    {79, kCanvas<&Form1::lvButtons_H38>, "CZSYGK"},
    {80, kCanvas<&Form1::lvButtons_H39>, "ZSYGK"},
    {81, kCanvas<&Form1::Label27>, "ZAKFND"},
    {82, kCanvas<&Form1::Picture15>, "Z"},
    {83, kCanvas<&Form1::Label31>, "ZAKFND"},
    {84, kCanvas<&Form1::Picture10>, "Z"},
    {85, kCanvas<&Form1::lvButtons_H40>, "ZSYGK"},
    {86, kCanvas<&Form1::lvButtons_H41>, "CZSYGK"},
    {87, kCanvas<&Form1::Label33>, "ZAKFND"},
    {88, kCanvas<&Form1::Label34>, "ZAKFND"},
    {89, kCanvas<&Form1::Picture4>, "Z", kClearsIndex},
    {90, kCanvas<&Form1::lvButtons_H42>, "CZSYGK"},
    {91, kCanvas<&Form1::Label35>, "ZAKFND"},
    {92, kCanvas<&Form1::Label36>, "ZAKFND"},
    {93, kCanvas<&Form1::Label37>, "ZAKFND"},
    {94, kCanvas<&Form1::lvButtons_H43>, "ZSYGK"},
    {95, kCanvas<&Form1::Label38>, "ZAKFND"},
    {96, kCanvas<&Form1::Label39>, "ZAKFND", kClearsIndex},
    {97, kCanvas<&Form1::Label40>, "ZAKFND"},
    {98, kCanvas<&Form1::lvButtons_H44>, "CZSYGK"},
    {99, kCanvas<&Form1::Label41>, "ZAKFND", kClearsIndex},
    {100, kCanvas<&Form1::Picture16>, "Z"},
    {101, kCanvas<&Form1::Picture1>, "Z"},
    {102, kCanvas<&Form1::Label43>, "ZAKFND"},
    {103, kCanvas<&Form1::lvButtons_H14>, "CZSYGK"},
    {104, kCanvas<&Form1::lvButtons_H15>, "CZSYK"},
    {105, kCanvas<&Form1::lvButtons_H46>, "CZSYK"},
    {110, kCanvas<&Form1::Image2>, "Z"},
    {111, kCanvas<&Form1::ucAniGIF1>, "Z"},
    {112, kCanvas<&Form1::Label9>, "ZAKFND"},
    {113, kCanvas<&Form1::Label10>, "ZAKFND"},
    {114, kCanvas<&Form1::Picture20>, "Z"},
    {115, kCanvas<&Form1::Label46>, "ZAKFND"},
    {116, kCanvas<&Form1::lvButtons_H52>, "ZSYGK"},
    {117, kCanvas<&Form1::Label45>, "ZAKFND"},
    {118, kCanvas<&Form1::Picture23>, "Z", kClearsIndex},
    {119, kCanvas<&Form1::lvButtons_H54>, "ZSYK"},
    {120, kCanvas<&Form1::lvButtons_H45>, "ZSYGK"},
    {121, kCanvas<&Form1::lvButtons_H48>, "CZSYGK"},
    {122, kCanvas<&Form1::lvButtons_H47>, "CZSYK"},
    {123, kCanvas<&Form1::Picture17>, "Z", kClearsIndex},
    {124, kCanvas<&Form1::Picture18>, "Z"},
    {125, kCanvas<&Form1::lvButtons_H49>, "CZSYGK"},
    {126, kCanvas<&Form1::Label44>, "ZAKFND"},
    {127, kCanvas<&Form1::Picture19>, "Z"},
    {128, kCanvas<&Form1::lvButtons_H50>, "CZSYGK"},
    {129, kCanvas<&Form1::lvButtons_H51>, "ZSYGK"},
    {130, kCanvas<&Form1::Label47>, "ZAKFND"},
    {131, kCanvas<&Form1::Label48>, "ZAKFND"},
    {132, kCanvas<&Form1::Label49>, "ZAKFND"},
    {133, kCanvas<&Form1::Label50>, "ZAKFND"},
    {134, kCanvas<&Form1::lvButtons_H53>, "CZSYGK"},
    {135, kCanvas<&Form1::Label51>, "ZAKFND"},
    {136, kCanvas<&Form1::Label52>, "ZAKFND"},
    {137, kCanvas<&Form1::lvButtons_H56>, "CZSYGK"},
    {138, kCanvas<&Form1::Label53>, "ZAKFND"},
    {139, kCanvas<&Form1::Picture24>, "ZK", kClearsIndex},
    {140, kCanvas<&Form1::Label54>, "ZAKFND"},
    {149, kCanvas<&Form1::Label64>, "ZAKFND"},
    {150, kCanvas<&Form1::lvButtons_H57>, "ZSYGK"},
    {151, kCanvas<&Form1::Label55>, "ZKFND"},
    {152, kCanvas<&Form1::lvButtons_H58>, "CZSYGK"},
    {153, kCanvas<&Form1::Label56>, "ZKFND"},
    {154, kCanvas<&Form1::lvButtons_H59>, "ZSYGK"},
    {155, kCanvas<&Form1::lvButtons_H60>, "ZSYGK"},
    {156, kCanvas<&Form1::Label58>, "ZKFND"},
    {157, kCanvas<&Form1::Picture25>, "Z"},
    {158, kCanvas<&Form1::Label59>, "ZAKFND"},
    {160, kCanvas<&Form1::Label60>, "ZKFND"},
    {161, kCanvas<&Form1::Picture26>, "Z"},
    {162, kCanvas<&Form1::Picture27>, "Z"},
    {163, kCanvas<&Form1::Label61>, "ZKFND"},
    {165, kCanvas<&Form1::Picture31>, "Z"},
    {170, kCanvas<&Form1::Label62>, "ZAKFND"},
    {171, kCanvas<&Form1::Label63>, "ZAKFND"},
    {172, kCanvas<&Form1::lvButtons_H61>, "CZSYGK"},
    {173, kCanvas<&Form1::Picture30>, "Z"},
    {179, kCanvas<&Form1::aicAlphaImage1>, "Z"},
    {180, kCanvas<&Form1::Picture32>, "Z", kClearsIndex},
    {181, kCanvas<&Form1::lvButtons_H62>, "CZSYK"},
    {182, kCanvas<&Form1::Picture33>, "Z", kClearsIndex},
    {189, kCanvas<&Form1::Picture28>, "ZK", kClearsIndex},
    {190, kCanvas<&Form1::Picture29>, "Z", kClearsIndex},
};

}  // namespace

std::span<const Section> sections() {
  return kSections;
}

const Section* findSection(int number) {
  const auto found = std::ranges::lower_bound(kSections, number, {}, &Section::number);
  return found != std::end(kSections) && found->number == number ? found : nullptr;
}

int sectionOf(State& state, const Family& family) {
  const auto found =
      std::ranges::find_if(kSections, [&](const Section& s) { return &s.family(state) == &family; });
  return found == std::end(kSections) ? 0 : found->number;
}

Family* familyOfSection(State& state, int number) {
  const Section* section = findSection(number);
  return section ? &section->family(state) : nullptr;
}

bool contains(std::span<const int> numbers, int number) {
  return std::ranges::find(numbers, number) != numbers.end();
}

Element* currentElement(State& state) {
  const Family* family = familyOfSection(state, state.globals.SectionNumber);
  if (!family) return nullptr;
  return family->find(family->isArray() ? state.globals.ElementIndex : 0);
}

Element* currentElement(State& state, ToolField field) {
  const Section* section = findSection(state.globals.SectionNumber);
  return section && section->serves(field) ? currentElement(state) : nullptr;
}

}  // namespace veneerer
