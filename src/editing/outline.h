// Every element of the canvas, to be found by its words.
#pragma once

#include <vector>

#include "forms/state.h"

namespace veneerer {

struct OutlineEntry {
  Element* element;
  QString screen;   ///< the entry of its screen in the Edit Section list, or "Frame"
  QString title;    ///< elementTitle()
  QString key;      ///< shortName()
  int section = 0;  ///< 0 for a family without one
};

/// All elements of the canvas by screen, the frame first, and within a screen by family and index.
std::vector<OutlineEntry> outlineOf(State& state);

/// Whether each word of the query is in the entry's screen, title or key, or is its Section's number; in any
/// order and any case. An empty query finds all.
bool matches(const OutlineEntry& entry, const QStringList& words);

/// The words of a query.
QStringList queryWords(const QString& query);

/// All elements at a point of the canvas, hidden ones too, the topmost first, on the screens that are shown;
/// twips.
std::vector<Element*> elementsAt(State& state, float x, float y);

}  // namespace veneerer
