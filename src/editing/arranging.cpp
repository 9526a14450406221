#include "editing/arranging.h"

#include <algorithm>

#include "editing/setting.h"
#include "painting/hittest.h"

namespace veneerer {

namespace {

template <class E>
struct Word {
  const char16_t* word;
  E meaning;
};

constexpr Word<AlignTo> kLines[] = {{u"left", AlignTo::Left},     {u"right", AlignTo::Right},
                                    {u"top", AlignTo::Top},       {u"bottom", AlignTo::Bottom},
                                    {u"centre", AlignTo::Centre}, {u"middle", AlignTo::Middle}};
constexpr Word<Along> kAlongs[] = {{u"across", Along::Across}, {u"down", Along::Down}};
constexpr Word<Sides> kSides[] = {
    {u"width", Sides::Width}, {u"height", Sides::Height}, {u"both", Sides::Both}};

template <class E, std::size_t N>
std::optional<E> meaningOf(QStringView word, const Word<E> (&words)[N]) {
  for (const Word<E>& each : words)
    if (word == each.word) return each.meaning;
  return std::nullopt;
}

bool isAcross(AlignTo line) {
  return line == AlignTo::Left || line == AlignTo::Right || line == AlignTo::Centre;
}

double placeOf(const QRectF& rect, AlignTo line) {
  switch (line) {
    case AlignTo::Left:
      return rect.left();
    case AlignTo::Right:
      return rect.right();
    case AlignTo::Top:
      return rect.top();
    case AlignTo::Bottom:
      return rect.bottom();
    case AlignTo::Centre:
      return rect.center().x();
    case AlignTo::Middle:
      return rect.center().y();
  }
  return 0;
}

void moveBy(Element& element, bool across, double twips) {
  const Property place = across ? Property::Left : Property::Top;
  if (twips != 0) setProperty(element, place, static_cast<float>(element.as<float>(place) + twips));
}

}  // namespace

std::optional<AlignTo> alignToNamed(QStringView word) {
  return meaningOf(word, kLines);
}

std::optional<Along> alongNamed(QStringView word) {
  return meaningOf(word, kAlongs);
}

std::optional<Sides> sidesNamed(QStringView word) {
  return meaningOf(word, kSides);
}

void alignElements(const std::vector<Element*>& elements, AlignTo line) {
  if (elements.empty()) return;
  const double place = placeOf(windowRect(*elements.front()), line);
  for (Element* element : elements)
    moveBy(*element, isAcross(line), place - placeOf(windowRect(*element), line));
}

void distributeElements(const std::vector<Element*>& elements, Along along) {
  if (elements.size() < 3) return;
  const bool across = along == Along::Across;
  const auto startOf = [&](const Element* e) {
    return across ? windowRect(*e).left() : windowRect(*e).top();
  };
  const auto lengthOf = [&](const Element* e) { return double(across ? e->width() : e->height()); };
  std::vector<Element*> sorted = elements;
  std::ranges::stable_sort(sorted, {}, startOf);
  double lengths = 0;
  for (const Element* element : sorted) lengths += lengthOf(element);
  const double whole = startOf(sorted.back()) + lengthOf(sorted.back()) - startOf(sorted.front());
  const double gap = (whole - lengths) / double(sorted.size() - 1);
  double place = startOf(sorted.front());
  for (Element* element : sorted) {
    if (element != sorted.back()) moveBy(*element, across, place - startOf(element));
    place += lengthOf(element) + gap;
  }
}

void makeSameSize(const std::vector<Element*>& elements, Sides sides) {
  for (Element* element : elements) {
    if (sides != Sides::Height) setProperty(*element, Property::Width, elements.front()->width());
    if (sides != Sides::Width) setProperty(*element, Property::Height, elements.front()->height());
  }
}

}  // namespace veneerer
