#include "painting/facecanvas.h"

#include <QPainterPath>
#include <QtMath>
#include <algorithm>

namespace veneerer {

namespace {

constexpr auto kWithinOutline = QPainter::CompositionMode_SourceAtop;

// The widest edge of all styles and its inset, in pixels.
constexpr double kEdgePixels = 4;

bool isOpaque(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    if (!std::all_of(row, row + image.width(), [](QRgb pixel) { return qAlpha(pixel) == 255; })) return false;
  }
  return true;
}

// The same mask moved, in an image of the same size.
QImage moved(const QImage& mask, int x, int y) {
  QImage copy(mask.size(), mask.format());
  copy.fill(Qt::transparent);
  QPainter painter(&copy);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.drawImage(x, y, mask);
  return copy;
}

void combine(QImage& mask, const QImage& other, QPainter::CompositionMode mode) {
  QPainter painter(&mask);
  painter.setCompositionMode(mode);
  painter.drawImage(0, 0, other);
}

}  // namespace

FaceCanvas::FaceCanvas(const QImage& base, double devicePixelsPerPixel, const QRect& part, QSize size)
    : outline_(base),
      face_(base),
      scale_(devicePixelsPerPixel),
      part_(part),
      size_(size),
      hasEdges_(!QRect(QPoint(), size).adjusted(1, 1, -1, -1).contains(part) || !isOpaque(base)) {}

int FaceCanvas::edgeReach(double devicePixelsPerPixel) {
  return qCeil(kEdgePixels * devicePixelsPerPixel) + 2;
}

int FaceCanvas::device(double pixels) const {
  return std::max(1, qRound(pixels * scale_));
}

void FaceCanvas::begin(QPainter& painter) const {
  painter.translate(-part_.topLeft());
  painter.setCompositionMode(kWithinOutline);
}

void FaceCanvas::fill(const QBrush& brush) {
  QPainter painter(&face_);
  begin(painter);
  painter.fillRect(part_, brush);
}

void FaceCanvas::fillPath(const QPainterPath& path, const QBrush& brush) {
  QPainter painter(&face_);
  begin(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(path, brush);
}

void FaceCanvas::draw(const QImage& image, const QRectF& target) {
  QPainter painter(&face_);
  begin(painter);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(target, image);
}

void FaceCanvas::paintBand(int inset, int stepX, int stepY, const QColor& colour) {
  if (!hasEdges_) return;
  QImage band = narrowed(inset);
  combine(band, moved(band, stepX, stepY), QPainter::CompositionMode_DestinationOut);
  paintMasked(std::move(band), colour);
}

void FaceCanvas::paintRing(int inset, int width, const QColor& colour) {
  if (!hasEdges_) return;
  QImage ring = narrowed(inset);
  combine(ring, narrowed(inset + width), QPainter::CompositionMode_DestinationOut);
  paintMasked(std::move(ring), colour);
}

QImage FaceCanvas::narrowed(int inset) const {
  QImage mask = outline_;
  const int steps[][2] = {{inset, 0}, {-inset, 0}, {0, inset}, {0, -inset}};
  if (inset > 0)
    for (const auto& [x, y] : steps)
      combine(mask, moved(outline_, x, y), QPainter::CompositionMode_DestinationIn);
  return mask;
}

void FaceCanvas::paintMasked(QImage band, const QColor& colour) {
  {
    QPainter painter(&band);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(band.rect(), colour);
  }
  combine(face_, band, kWithinOutline);
}

}  // namespace veneerer
