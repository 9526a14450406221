#include "problems/elementjudge.h"

#include <QSet>

#include "canvas/screens.h"
#include "elements/button.h"
#include "problems/captionremedies.h"
#include "problems/savedtexts.h"
#include "problems/screenplace.h"
#include "problems/texts.h"

namespace veneerer {

ElementJudge::ElementJudge(const State& state, const Screen& screen, RecordPlaces places, int touch)
    : state_(state), hints_(state, screen, touch), places_(std::move(places)) {}

bool ElementJudge::isOnCanvas(const Element& element) const {
  return &element.window() == &state_.form1 && element.container();
}

Findings ElementJudge::damage(const Element& element) const {
  Findings findings;
  QSet<Property> seen;
  for (const RecordPlace& place : places_.of(element)) {
    if (seen.contains(place.property)) continue;
    seen.insert(place.property);
    const QString text = savedTextDamage(element, place.property);
    if (text.isEmpty()) continue;
    findings.append(found(FindingKind::Warning, element, place.property, text));
    if (place.property == Property::Caption) findings.last().remedies = captionRemedies(element);
  }
  return findings << shapeDamage(element);
}

// A picture that is taken away leaves the outline that was made of it.
Findings ElementJudge::shapeDamage(const Element& element) const {
  if (element.kind() != Kind::Button) return {};
  const auto& button = cast<Button>(element);
  if (!button.isCustomShaped() || !button.picture().isNull()) return {};
  Finding finding = found(
      FindingKind::Warning, element, Property::ButtonShape,
      ProblemTexts::tr("the shape comes from a picture, and there is none: the next load sets it to 0"));
  finding.remedies = {{RemedyKind::DropShape,
                       ProblemTexts::tr("Set the shape to 0, a rectangle"),
                       {{element.key(), Property::ButtonShape, 0}}}};
  return {finding};
}

Findings ElementJudge::hintsAtOnce(const Element& element) {
  return isOnCanvas(element) ? found(element, hints_.atOnce(element)) : Findings();
}

Findings ElementJudge::hintsByGround(const Element& element) {
  return isOnCanvas(element) ? found(element, hints_.byGround(element)) : Findings();
}

Findings ElementJudge::found(const Element& element, const QList<Hint>& hints) const {
  Findings findings;
  for (const Hint& hint : hints)
    findings.append(
        found(FindingKind::Hint, element, hint.property, element.key() + QStringLiteral(": ") + hint.text));
  return findings;
}

// Where a file holds the element but not that property, the element's first line serves as well.
Finding ElementJudge::found(FindingKind kind, const Element& element, Property property,
                            const QString& text) const {
  std::optional<RecordPlace> place = places_.of(element, property);
  if (const QList<RecordPlace> all = places_.of(element); !place && !all.isEmpty()) place = all.first();
  Finding finding{kind, {}, 0, text, element.key(), property};
  if (place) {
    finding.file = place->file;
    finding.line = place->line;
  } else {
    const auto name = kScreenEntries[static_cast<std::size_t>(screenEntryOf(state_, element))];
    finding.file = QString::fromUtf16(name.data(), static_cast<qsizetype>(name.size()));
  }
  return finding;
}

}  // namespace veneerer
