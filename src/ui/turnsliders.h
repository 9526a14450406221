// Hue, saturation and lightness, each as a slider with its number.
#pragma once

#include <QSlider>
#include <QWidget>
#include <array>

#include "recolouring/colourturn.h"

namespace veneerer {

class TurnSliders : public QWidget {
  Q_OBJECT

public:
  TurnSliders();

  ColourTurn turn() const;
  void reset();

Q_SIGNALS:
  void turned();

private:
  std::array<QSlider*, 3> sliders_;  ///< in the order of ColourTurn
};

}  // namespace veneerer
