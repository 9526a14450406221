// The colours of a Skin as rows: how often each is used, where, and what becomes of it.
#pragma once

#include <QTreeWidget>

#include "editing/coloursinuse.h"
#include "recolouring/colourmap.h"

namespace veneerer {

class ColourList : public QTreeWidget {
  Q_OBJECT

public:
  /// The state, which is the Skin, must outlive the list.
  explicit ColourList(const veneerer::State& skin);

  /// The colours of these places, the most frequent first, each with what the map makes of it. The row that
  /// was chosen stays so as long as it is there.
  void show(const std::vector<ColourPlace>& places, const ColourMap& map);
  /// What becomes of the colours that are listed.
  void showMap(const ColourMap& map);

  /// The colour of the chosen row; nothing where there is none.
  std::optional<Colour> chosen() const;

private:
  const veneerer::State& skin_;
};

}  // namespace veneerer
