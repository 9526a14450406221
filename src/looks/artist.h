// Draws the pictures of a Skin. All that they show follows from the look and the size asked for; sizes are in
// pixels.
#pragma once

#include <QImage>
#include <QStringList>
#include <vector>

#include "looks/icons.h"
#include "looks/look.h"
#include "looks/palette.h"

namespace veneerer::looks {

class Artist {
public:
  /// All three must outlive the artist.
  Artist(const Look& look, const design::Plan& plan, const Scheme& scheme)
      : look_(look), plan_(plan), scheme_(scheme) {}

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
  /// A panel of its own, with an icon as a watermark.
  QImage card(QSize size, Icon icon) const;
  /// A cover that isn't there.
  QImage cover(int side) const;
  /// The ground of a slider.
  QImage track(QSize size) const;
  /// The face of a menu button, see-through but for its icon and the lines of its caption.
  QImage menuFace(QSize size, Icon icon, const QStringList& caption, const QColor& ink) const;
  /// The same of a caption alone, in letters of at most so many points before the plan's text scale.
  QImage captionFace(QSize size, const QStringList& caption, double points, const QColor& ink) const;
  /// The ground of a panel that lies on others.
  QImage popup(QSize size) const;
  /// An icon alone, filled.
  QImage iconFace(QSize size, Icon icon, const QColor& ink) const;
  /// The box that holds a prize; its outline is the button's.
  QImage prize(int side) const;
  /// What can be read on the box.
  QColor prizeInk() const;
  /// Darkens the place of a text that is white in every Skin, where it couldn't be read otherwise.
  void backWhiteText(QImage& image, const design::Box& place) const;
  /// Five stars, none of them earned.
  QImage stars(QSize size) const;
  /// The frames of a cover's frame: a light that runs round a see-through middle.
  std::vector<QImage> coverFrame(int side, int count) const;

private:
  void paintPattern(QPainter& painter, const QRectF& area, QColor ink, double strength) const;
  void paintBar(QPainter& painter, const QRectF& area) const;
  void paintRecord(QPainter& painter, const QRectF& area) const;
  static QRectF stageIcon(const QRectF& area);

  const Look& look_;
  const design::Plan& plan_;
  const Scheme& scheme_;
};

}  // namespace veneerer::looks
