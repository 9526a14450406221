#include "canvas/placeholders.h"

#include <algorithm>
#include <climits>
#include <span>
#include <string_view>

#include "elements/numbers.h"

namespace veneerer {

namespace {

enum class Numbered { No, Yes };

struct Placeholder {
  FamilyRef family;
  std::u16string_view before;
  Numbered numbered = Numbered::No;
  std::u16string_view after = {};
  int first = 0;  ///< the members that take it
  int last = INT_MAX;
  int shift = 0;  ///< taken from the index before it is shown
  Property property = Property::Caption;
  FamilyRef target = nullptr;  ///< takes the text in the element's place
};

constexpr std::u16string_view kExample = u"TEXT EXAMPLE";

constexpr Placeholder kOnClick[] = {
    {kCanvas<&Form1::Label1>, u"Track Listing ", Numbered::Yes},
    {kCanvas<&Form1::Label3>, u"Track ", Numbered::Yes},
    {kCanvas<&Form1::Label11>, u"", Numbered::Yes, u"."},
    {kCanvas<&Form1::Label8>, u"", Numbered::Yes, u"."},
    {kCanvas<&Form1::Label7>, kExample},
    {kCanvas<&Form1::Label6>, kExample},
    {kCanvas<&Form1::Label14>, kExample},
    {kCanvas<&Form1::Label15>, kExample},
    {kCanvas<&Form1::Label17>, kExample},
    {kCanvas<&Form1::Label18>, kExample},
    {kCanvas<&Form1::Label20>, kExample},
    {kCanvas<&Form1::Label27>, kExample},
    {kCanvas<&Form1::Label33>, kExample},
    {kCanvas<&Form1::Label34>, kExample},
    {kCanvas<&Form1::Label43>, kExample},
    {kCanvas<&Form1::Label46>, kExample},
    {kCanvas<&Form1::Label45>, kExample},
    {kCanvas<&Form1::Label32>, kExample},
    {kCanvas<&Form1::Label12>, u"Songs In History"},
    {.family = kCanvas<&Form1::Label2>, .before = u"Released : ", .first = 2, .last = 2},
    {.family = kCanvas<&Form1::Label2>, .before = u"Genre : ", .first = 3, .last = 3},
    {kCanvas<&Form1::Label35>, u"Artist ", Numbered::Yes},
    {kCanvas<&Form1::Label36>, u"Track ", Numbered::Yes},
    {kCanvas<&Form1::Label37>, u"Time ", Numbered::Yes},
    {kCanvas<&Form1::Label47>, u"Track:", Numbered::Yes, u"."},
    {kCanvas<&Form1::Label48>, u"Artist:", Numbered::Yes, u"."},
    {kCanvas<&Form1::Label49>, u"Played On:", Numbered::Yes, u"."},
    {kCanvas<&Form1::Label50>, u"Played () Times", Numbered::Yes, u"."},
    {kCanvas<&Form1::Label59>, u"() Album(s)"},
    {.family = kCanvas<&Form1::Label59>,
     .before = u"",
     .numbered = Numbered::Yes,
     .after = u" Albums Button",
     .property = Property::ToolTipText},
    {kCanvas<&Form1::Label60>, u"Play Count: ", Numbered::Yes},
    {kCanvas<&Form1::Label61>, u"Added By:", Numbered::Yes},
    {kCanvas<&Form1::Label62>, u"Released: ", Numbered::Yes},
    {kCanvas<&Form1::Label63>, u"Genre: ", Numbered::Yes},
    {.family = kCanvas<&Form1::Label64>, .before = u"Album Title ", .numbered = Numbered::Yes, .last = 9},
    {.family = kCanvas<&Form1::Label64>,
     .before = u"Artist ",
     .numbered = Numbered::Yes,
     .first = 10,
     .shift = 9},
    {.family = kCanvas<&Form1::aicAlphaImage1>,
     .before = u"Star Rating",
     .numbered = Numbered::Yes,
     .property = Property::ToolTipText},
    // Required: the text of a requested track lands in the track listing, not in the label that was clicked.
    {.family = kCanvas<&Form1::Label53>,
     .before = u"Track Listing ",
     .numbered = Numbered::Yes,
     .target = kCanvas<&Form1::Label1>},
};

constexpr Placeholder kOnPress[] = {
    {kCanvas<&Form1::Label14>, kExample},
    {kCanvas<&Form1::Label15>, kExample},
    {kCanvas<&Form1::Label17>, kExample},
    {kCanvas<&Form1::Label20>, kExample},
    {kCanvas<&Form1::Label18>, kExample},
    {kCanvas<&Form1::Label32>, kExample},
    {kCanvas<&Form1::Label12>, u"Text Exmaple"},
    {kCanvas<&Form1::Label1>, u"Track Listing ", Numbered::Yes},
    {kCanvas<&Form1::Label3>, u"Track ", Numbered::Yes},
    {.family = kCanvas<&Form1::Label16>, .before = u"TRACK", .last = 6},
    {.family = kCanvas<&Form1::Label16>, .before = u"ALBUM", .first = 7},
};

constexpr FamilyRef kOpaqueOnPress[] = {
    kCanvas<&Form1::Label27>, kCanvas<&Form1::Label33>, kCanvas<&Form1::Label34>,
    kCanvas<&Form1::Label44>, kCanvas<&Form1::Label45>, kCanvas<&Form1::Label41>,
    kCanvas<&Form1::Label46>, kCanvas<&Form1::Label54>, kCanvas<&Form1::Label55>,
};

QString textOf(const Placeholder& row, int index) {
  QString text = QStringView(row.before).toString();
  if (row.numbered == Numbered::Yes) text += signedNumber(index - row.shift);
  return text + QStringView(row.after).toString();
}

void put(State& state, Element& element, std::span<const Placeholder> rows) {
  const int index = std::max(0, element.index());
  for (const Placeholder& row : rows) {
    if (&row.family(state) != element.family() || index < row.first || index > row.last) continue;
    Element* target = row.target ? row.target(state).find(index) : &element;
    if (target) target->set(row.property, textOf(row, index));
  }
}

}  // namespace

void putClickPlaceholder(State& state, Element& element) {
  put(state, element, kOnClick);
}

void putPressPlaceholder(State& state, Element& element) {
  put(state, element, kOnPress);
}

bool turnsOpaqueOnPress(const State& state, const Family& family) {
  return std::ranges::any_of(kOpaqueOnPress, [&](FamilyRef ref) { return &ref(state) == &family; });
}

}  // namespace veneerer
