#include "canvas/description.h"

#include <cmath>

#include "canvas/screens.h"
#include "canvas/sections.h"
#include "canvas/texts.h"
#include "elements/numbers.h"
#include "elements/printable.h"

namespace veneerer {

namespace {

constexpr int kLongestTitle = 40;  // code points

const QString kGap = QStringLiteral("   ");

QString placeText(const QString& left, const QString& top, const QString& width, const QString& height,
                  const QString& unit) {
  return QStringLiteral("%1, %2  %3 × %4 %5").arg(left, top, width, height, unit);
}

QString inTwips(const Element& e) {
  return placeText(singleText(e.left()), singleText(e.top()), singleText(e.width()), singleText(e.height()),
                   CanvasTexts::tr("twips"));
}

// Of a record file any number may come, far beyond an int.
QString wholeText(double number) {
  return QString::number(std::round(number) + 0.0, 'f', 0);  // no minus ahead of a zero
}

QString inPixels(const Element& e, const Screen& screen) {
  const auto across = [&](float twips) { return wholeText(twips / screen.twipsPerPixelX()); };
  const auto down = [&](float twips) { return wholeText(twips / screen.twipsPerPixelY()); };
  return placeText(across(e.left()), down(e.top()), across(e.width()), down(e.height()),
                   QStringLiteral("px"));
}

QString sectionText(const State& state, const Element& element) {
  const int number = element.family() ? sectionOf(state, *element.family()) : 0;
  return number == 0 ? CanvasTexts::tr("no Section") : CanvasTexts::tr("Section %1").arg(number);
}

}  // namespace

QString shortName(const Element& element) {
  return element.key().section(u'.', -1);
}

QString elementTitle(const State& state, const Element& element) {
  if (!element.family()) return CanvasTexts::tr("the canvas");
  if (const int entry = entryOf(state, element); entry >= 0) return screenTitle(entry);
  if (!element.has(Property::Caption)) return shortName(element);
  // The mark of a new line is for the canvas alone.
  const QString caption =
      QString(element.as<QString>(Property::Caption)).replace(QStringLiteral("||"), QStringLiteral(" "));
  const QString title = excerpt(caption.simplified(), kLongestTitle);
  if (title.isEmpty()) return shortName(element);
  return element.index() < 0 ? title : QStringLiteral("%1 (%2)").arg(title).arg(element.index());
}

// British spelling, like all that the windows say.
QString propertyTitle(Property property) {
  QString title;
  for (const QChar letter : QString(propertyName(property))) {
    if (letter.isUpper() && !title.isEmpty()) title += u' ';
    title += letter;
  }
  return title.replace(QStringLiteral("Color"), QStringLiteral("Colour"));
}

QString fontText(const Element& element) {
  if (!element.has(Property::FontName)) return {};
  QStringList words{excerpt(element.as<QString>(Property::FontName), kLongestTitle),
                    singleText(element.as<float>(Property::FontSize))};
  for (const auto& [flag, word] :
       {std::pair(Property::FontBold, QT_TRANSLATE_NOOP("Canvas", "bold")),
        {Property::FontItalic, QT_TRANSLATE_NOOP("Canvas", "italic")},
        {Property::FontUnderline, QT_TRANSLATE_NOOP("Canvas", "underlined")},
        {Property::FontStrikethrough, QT_TRANSLATE_NOOP("Canvas", "struck through")}})
    if (element.as<bool>(flag)) words.append(CanvasTexts::tr(word));
  return words.join(u' ');
}

int entryHolding(const State& state, const Element& element) {
  for (const Element* e = &element; e; e = e->container())
    if (const int entry = entryOf(state, *e); entry >= 0) return entry;
  return -1;
}

QString screenName(const State& state, const Element& element) {
  const int entry = entryHolding(state, element);
  return entry >= 0 ? screenTitle(entry) : CanvasTexts::tr("Frame");
}

QString describe(const State& state, const Element& element, const Screen& screen) {
  QString where = screenName(state, element);
  const Element* holder = element.container();
  if (holder && holder->family() && entryOf(state, *holder) < 0)
    where = CanvasTexts::tr("%1, in %2").arg(where, shortName(*holder));
  return QStringList{shortName(element), sectionText(state, element), where, inTwips(element),
                     inPixels(element, screen)}
      .join(kGap);
}

}  // namespace veneerer
