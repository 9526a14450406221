// What a button's face is painted on. Edges are not strokes along a path but bands between the outline and
// the same outline moved aside: so every style fits every outline, be it a polygon or cut from a picture.
#pragma once

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QPainter>

namespace veneerer {

class FaceCanvas {
public:
  /// Begins with a face in its plain colours, cut to its outline: its alpha is the outline that all further
  /// paint keeps within. Premultiplied; its size is in device pixels, of which so many make one pixel.
  FaceCanvas(const QImage& base, double devicePixelsPerPixel)
      : FaceCanvas(base, devicePixelsPerPixel, base.rect(), base.size()) {}
  /// The same for a part of a face of that size: the base holds that part alone. Everything is placed as on
  /// the whole face. Edges come out wrong along the sides of the part that are none of the face, as far as
  /// edgeReach().
  FaceCanvas(const QImage& base, double devicePixelsPerPixel, const QRect& part, QSize size);

  /// How far edges reach into a face, device pixels.
  static int edgeReach(double devicePixelsPerPixel);

  QSize size() const { return size_; }
  /// A length in whole device pixels, at least one.
  int device(double pixels) const;

  void fill(const QBrush& brush);
  void fillPath(const QPainterPath& path, const QBrush& brush);
  void draw(const QImage& image, const QRectF& target);

  /// Paints what the face, narrowed by an inset on all sides, loses when it is moved: along the top and left
  /// edges for positive steps, along the bottom and right edges for negative ones. All in device pixels.
  void paintBand(int inset, int stepX, int stepY, const QColor& colour);
  /// Paints a line along the whole inner edge.
  void paintRing(int inset, int width, const QColor& colour);

  const QImage& face() const { return face_; }

private:
  void begin(QPainter& painter) const;
  QImage narrowed(int inset) const;
  void paintMasked(QImage band, const QColor& colour);

  QImage outline_;
  QImage face_;
  double scale_;
  QRect part_;
  QSize size_;
  bool hasEdges_;  ///< false within a face, far from its outline
};

}  // namespace veneerer
