// Draws the pictures of a Skin. All that they show follows from the look and the size asked for; sizes are in
// pixels.
#pragma once

#include <QImage>
#include <QStringList>
#include <vector>

#include "looks/icons.h"
#include "looks/look.h"

namespace veneerer::looks {

class Artist {
public:
  explicit Artist(const Look& look) : look_(look) {}

  /// What stands behind everything, the bars included; covers the window's surplus as well.
  QImage backdrop() const;
  /// A screen with a header of that height, 0 for none, and the icon as a watermark.
  QImage screen(QSize size, int header, Icon icon) const;
  /// The panel of the main screen.
  QImage stage(QSize size) const;
  QImage bar(QSize size) const;
  QImage logo(QSize size) const;
  /// A title in the header.
  QImage banner(QSize size, const QString& text) const;
  /// A dark panel for light texts, with an icon as a watermark.
  QImage card(QSize size, Icon icon) const;
  /// A cover that isn't there.
  QImage cover(int side) const;
  /// The ground of a slider.
  QImage track(QSize size) const;
  /// The face of a button with an icon, see-through elsewhere.
  /// The caption's lines stand under an icon above them; lettering takes their place.
  QImage menuFace(QSize size, Icon icon, const QStringList& caption) const;
  /// The ground of a panel that lies on others.
  QImage popup(QSize size) const;
  QImage iconFace(QSize size, Icon icon) const;
  /// The box that holds a prize; its outline is the button's.
  QImage prize(int side) const;
  /// Five stars, none of them earned.
  QImage stars(QSize size) const;
  /// The frames of a cover's frame: a light that runs round a see-through middle.
  std::vector<QImage> coverFrame(int side, int count) const;

private:
  void paintMotif(QPainter& painter, const QRectF& area, double strength) const;
  void paintBar(QPainter& painter, const QRectF& area) const;
  QRectF menuIconPlace(QSize size, int captionLines) const;

  const Look& look_;
};

}  // namespace veneerer::looks
