// Everything that is found in one live element, with the place that a save gives it.
#pragma once

#include "problems/finding.h"
#include "problems/hints.h"
#include "skin/recordplaces.h"

namespace veneerer {

class ElementJudge {
public:
  /// The findings tell these places, those of the element's first line where a property has none, and the
  /// screen's name where the element has none. The state must outlive the judge.
  ElementJudge(const State& state, const Screen& screen, RecordPlaces places, int touch = kTouchPixels);

  void setPlaces(RecordPlaces places) { places_ = std::move(places); }

  /// Warnings: texts that a save and the next load spoil, a shape without its picture.
  Findings damage(const Element& element) const;
  /// The hints that can be told at once, and those that need what is drawn beneath; see Hints. None for what
  /// isn't on the canvas.
  Findings hintsAtOnce(const Element& element);
  Findings hintsByGround(const Element& element);

  /// A finding of that property with its place.
  Finding found(FindingKind kind, const Element& element, Property property, const QString& text) const;

private:
  Findings found(const Element& element, const QList<Hint>& hints) const;
  Findings shapeDamage(const Element& element) const;
  bool isOnCanvas(const Element& element) const;

  const State& state_;
  Hints hints_;
  RecordPlaces places_;
};

}  // namespace veneerer
