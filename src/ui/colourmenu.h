// The way to a colour that stands beside every colour of our own panels.
#pragma once

#include <QMenu>
#include <functional>

#include "ui/operator.h"

namespace veneerer {

/// A square of that colour, for a menu or a row. Size in device-independent pixels.
QPixmap colourChip(const QColor& colour, int size);

/// A menu with the Skin's own palette, the most frequent colours first, the eyedropper and the colour dialog.
/// What is chosen goes to the function.
class ColourMenu : public QMenu {
public:
  ColourMenu(Operator& hands, Colour initial, std::function<void(Colour)> chosen, QWidget* parent);

private:
  void addPalette(const State& state);

  std::function<void(Colour)> chosen_;
};

}  // namespace veneerer
