// Turns pixel after pixel: pictures have few colours, or the same again and again.
#pragma once

#include <QByteArray>
#include <QImage>
#include <optional>
#include <vector>

#include "exchange/longwork.h"
#include "recolouring/colourturn.h"

namespace veneerer {

class PixelTurner {
public:
  explicit PixelTurner(const ColourTurn& turn) : turn_(turn), known_(kKnown) {}

  /// The alpha stays.
  QRgb turned(QRgb colour);

  /// Turns all pixels of a picture, or its colour table, in the picture's own format; step is called now and
  /// then. False when every one stays what it is.
  bool turn(QImage& image, const Step& step);

  /// Turns so many colours one behind the other: red, green and blue, or the other way round, a byte each,
  /// and, where an entry has more than three bytes, others that stay. True when one has changed.
  enum class Order { RedFirst, BlueFirst };
  bool turnEntries(QByteArray& bytes, qsizetype from, qsizetype count, qsizetype entry, Order order);

private:
  struct Known {
    QRgb colour = 0;
    QRgb turned = 0;
  };
  static constexpr std::size_t kKnown = 4096;

  bool turnTable(QImage& image);
  bool turnPixels(QImage& image, const Step& step);

  ColourTurn turn_;
  std::vector<Known> known_;  ///< black is transparent black at first, which no turn asks for
};

}  // namespace veneerer
