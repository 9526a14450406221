// The colours of a Skin as squares to choose from.
#pragma once

#include <QAbstractButton>
#include <functional>
#include <vector>

#include "editing/coloursinuse.h"

namespace veneerer {

/// The arrow keys go from square to square, and off the rows to what stands above and below in the menu that
/// holds the grid; Enter and the space bar choose.
class PaletteGrid : public QWidget {
public:
  /// At least one colour.
  PaletteGrid(const std::vector<ColourUse>& uses, const std::function<void(Colour)>& chosen);

protected:
  bool eventFilter(QObject* chip, QEvent* event) override;

private:
  bool key(qsizetype at, QKeyEvent& event);

  QList<QAbstractButton*> chips_;
};

}  // namespace veneerer
