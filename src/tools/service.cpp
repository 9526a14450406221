#include "tools/service.h"

#include <algorithm>
#include <set>

#include "canvas/description.h"
#include "canvas/familyref.h"
#include "forms/controltips.h"
#include "tools/fonttools.h"
#include "tools/geometrytables.h"
#include "tools/geometrytools.h"
#include "tools/texts.h"

namespace veneerer {

namespace {

using Test = bool (*)(const State& state, const Section& section);

template <ToolField Field>
constexpr Test kField = [](const State&, const Section& section) { return section.fields.has(Field); };

template <GeometryTool Tool>
constexpr Test kRange =
    [](const State& state, const Section& section) { return hasRange(state, Tool, section.family(state)); };

constexpr Test kScreens = [](const State& state, const Section& section) {
  return &section.family(state) == &state.form1.Picture1;
};

constexpr Test kAlignedLabels = [](const State& state, const Section& section) {
  return copiesAlignment(state, section.family(state));
};

constexpr Test kNone = [](const State&, const Section&) { return false; };

constexpr int kEach = -1;

struct Service {
  FamilyRef control;
  int index;  ///< kEach for all of the family
  Test test;
  bool isCommand = true;  ///< one that is never grey
};

constexpr bool kGreyed = false;

constexpr Service kServices[] = {
    {kTools<&Form6::Text1>, kEach, kField<ToolField::Caption>, kGreyed},
    {kTools<&Form6::Text2>, kEach, kField<ToolField::TypedColour>, kGreyed},
    {kTools<&Form6::Text3>, kEach, kField<ToolField::Size>, kGreyed},
    {kTools<&Form6::Text4>, kEach, kField<ToolField::FontSize>, kGreyed},
    {kTools<&Form6::Text5>, kEach, kRange<GeometryTool::Shift>, kGreyed},
    {kTools<&Form6::Text6>, 0, kRange<GeometryTool::Space>, kGreyed},
    {kTools<&Form6::Text6>, 1, kNone, kGreyed},
    {kTools<&Form6::Text9>, kEach, kScreens, kGreyed},
    {kTools<&Form6::Text10>, kEach, kRange<GeometryTool::Grid>, kGreyed},
    {kTools<&Form6::Combo1>, kEach, kField<ToolField::Shape>, kGreyed},
    {kTools<&Form6::Combo2>, kEach, kField<ToolField::Style>, kGreyed},
    {kTools<&Form6::Combo4>, kEach, kField<ToolField::Gradient>, kGreyed},
    {kTools<&Form6::Combo5>, kEach, kField<ToolField::Alignment>, kGreyed},
    {kTools<&Form6::List1>, kEach, kField<ToolField::FontName>, kGreyed},
    {kTools<&Form6::Command14>, kEach, kField<ToolField::FontDialog>, kGreyed},
    {kTools<&Form6::Picture2>, kEach, kField<ToolField::Colour>},
    {kTools<&Form6::Command1>, 0, kField<ToolField::CopiedFontSize>},
    {kTools<&Form6::Command2>, 0, kField<ToolField::CopiedColours>},
    {kTools<&Form6::Command3>, kEach, kRange<GeometryTool::Styles>},
    {kTools<&Form6::Command4>, 0, kField<ToolField::CopiedFontName>},
    {kTools<&Form6::Command5>, kEach, kRange<GeometryTool::Size>},
    {kTools<&Form6::Command6>, kEach, kRange<GeometryTool::Shift>},
    {kTools<&Form6::Command7>, kEach, kRange<GeometryTool::Clear>},
    {kTools<&Form6::Command8>, kEach, kRange<GeometryTool::Align>},
    {kTools<&Form6::Command9>, kEach, kRange<GeometryTool::Space>},
    {kTools<&Form6::Command11>, kEach, kAlignedLabels},
    {kTools<&Form6::Command12>, kEach, kScreens},
    {kTools<&Form6::Command13>, kEach, kRange<GeometryTool::Grid>},
};

const Service* serviceOf(const State& state, const Element& control) {
  const auto found = std::ranges::find_if(kServices, [&](const Service& service) {
    return &service.control(state) == control.family() &&
           (service.index == kEach || service.index == control.index());
  });
  return found == std::end(kServices) ? nullptr : found;
}

/// What the operator calls the members of a family.
struct Words {
  const char* one;
  const char* all;
};

constexpr Words kButtons{QT_TRANSLATE_NOOP("Tools", "the button"), QT_TRANSLATE_NOOP("Tools", "buttons")};
constexpr Words kLabels{QT_TRANSLATE_NOOP("Tools", "the label"), QT_TRANSLATE_NOOP("Tools", "labels")};
constexpr Words kPictures{QT_TRANSLATE_NOOP("Tools", "the picture"), QT_TRANSLATE_NOOP("Tools", "pictures")};
constexpr Words kScreenWords{QT_TRANSLATE_NOOP("Tools", "the screen"), QT_TRANSLATE_NOOP("Tools", "screens")};

const Words* wordsOf(const State& state, const Family& family) {
  if (&family == &state.form1.Picture1) return &kScreenWords;
  switch (family.members().front()->kind()) {
    case Kind::Button:
      return &kButtons;
    case Kind::Label:
      return &kLabels;
    default:
      return &kPictures;
  }
}

QStringList servedKinds(const State& state, const Element& control) {
  std::set<const Words*> served;
  for (const Section& section : sections())
    if (servesSection(state, control, section)) served.insert(wordsOf(state, section.family(state)));
  QStringList kinds;
  for (const Words* words : served) kinds.append(ToolTexts::tr(words->all));
  kinds.sort();
  return kinds;
}

// At least one word.
QString listed(QStringList words) {
  const QString last = words.takeLast();
  return words.isEmpty() ? last : ToolTexts::tr("%1 and %2").arg(words.join(QStringLiteral(", ")), last);
}

QString about(const QString& tip, const QString& one, const QString& many) {
  return QString(tip).replace(QStringLiteral("%1"), one).replace(QStringLiteral("%2"), many);
}

}  // namespace

bool needsSection(const State& state, const Element& control) {
  return serviceOf(state, control) != nullptr;
}

bool servesSection(const State& state, const Element& control, const Section& section) {
  const Service* service = serviceOf(state, control);
  return !service || service->test(state, section);
}

bool servesWhatIsInHand(const State& state, const Element& control) {
  const Service* service = serviceOf(state, control);
  if (!service || service->isCommand) return true;
  const Section* section = findSection(state.globals.SectionNumber);
  return section && service->test(state, *section);
}

QString toolTipOf(const State& state, const Element& control) {
  const QString tip = controlTip(control);
  if (!needsSection(state, control)) return tip;
  const Section* section = findSection(state.globals.SectionNumber);
  const Element* inHand = currentElement(state);
  if (section && inHand && servesSection(state, control, *section)) {
    const Words& words = *wordsOf(state, section->family(state));
    return about(tip, ToolTexts::tr(words.one), ToolTexts::tr(words.all));
  }
  const QStringList served = servedKinds(state, control);
  if (served.isEmpty()) return tip;
  const QString kinds = listed(served);
  const QString general = about(tip, ToolTexts::tr("the element in hand"), kinds);
  if (!inHand) return ToolTexts::tr("%1\nIt serves %2; click one").arg(general, kinds);
  return ToolTexts::tr("%1\nIt serves %2, but not %3").arg(general, kinds, elementTitle(state, *inHand));
}

}  // namespace veneerer
