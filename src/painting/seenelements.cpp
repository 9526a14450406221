#include "painting/seenelements.h"

#include <QList>
#include <QRegion>
#include <algorithm>
#include <cmath>

#include "elements/button.h"
#include "elements/label.h"
#include "painting/buttonshape.h"
#include "painting/buttonstyle.h"
#include "painting/hittest.h"

namespace veneerer {

namespace {

// Smaller elements hide too little to be worth the work, and are painted too quickly. Pixels.
constexpr double kLarge = 160 * 160;

// Beyond this many rectangles looking costs more than it spares.
constexpr int kMostRectangles = 256;
constexpr int kMostPieces = 16;

bool isLarge(const QRectF& rect) {
  return rect.width() * rect.height() >= kLarge;
}

// The parts of a rectangular button's face that round corners leave full.
QList<QRectF> fullParts(const Button& button, const QRectF& rect) {
  if (button.isCustomShaped() || !isRectangle(button.buttonShape())) return {};
  const double radius =
      std::min({buttonStyle(button.buttonStyle()).radius, rect.width() / 2, rect.height() / 2});
  if (radius <= 0) return {rect};
  const double corner = radius * (1 - std::sqrt(0.5));
  return {rect.adjusted(corner, corner, -corner, -corner), rect.adjusted(radius, 0, -radius, 0),
          rect.adjusted(0, radius, 0, -radius)};
}

// The pixels that the rectangle covers, but for what rounding did to twips.
QRect coveredPixels(const QRectF& rect, double device) {
  constexpr double kRounding = 1.0 / 64;
  const auto first = [&](double at) { return static_cast<int>(std::ceil(at - kRounding)); };
  const auto end = [&](double at) { return static_cast<int>(std::floor(at + kRounding)); };
  const QRect covered(QPoint(first(rect.left()), first(rect.top())),
                      QPoint(end(rect.right()), end(rect.bottom())) - QPoint(1, 1));
  // Where a pixel is no whole number of the device's, the outermost ones are mixed with what lies behind.
  return device == std::floor(device) ? covered : covered.adjusted(1, 1, -1, -1);
}

/// Looks from the front to the back.
class Look {
public:
  Look(const QRectF& exposed, const PixelScale& scale) : open_(exposed.toAlignedRect()), scale_(scale) {}

  void within(const Element& container, QPointF origin, const QRectF& clip) {
    const std::vector<Element*>& children = container.children();
    for (auto child = children.rbegin(); child != children.rend(); ++child)
      if ((*child)->isVisible()) at(**child, origin, clip);
  }

  void on(const Stage& stage, const QRectF& clip) {
    for (auto element = stage.rbegin(); element != stage.rend(); ++element) at(**element, QPointF(), clip);
  }

  std::vector<SeenElement> backToFront() && {
    std::ranges::reverse(seen_);
    return std::move(seen_);
  }

private:
  void at(const Element& element, QPointF origin, const QRectF& clip) {
    const std::optional<QRectF> rect = pixelRect(element, origin, scale_);
    if (!rect || !rect->intersects(clip)) return;
    const QRectF inner = *rect & clip;
    if (isAnythingHidden_ && !open_.intersects(inner.toAlignedRect())) return;
    if (!element.children().empty()) within(element, rect->topLeft(), inner);
    if (isSeeThrough(element)) return;
    see({&element, *rect, clip}, inner);
    hideBehind(element, *rect, clip);
  }

  void see(const SeenElement& whole, const QRectF& inner) {
    if (!isAnythingHidden_ || !isLarge(whole.rect)) return seen_.push_back(whole);
    QRegion left = open_ & inner.toAlignedRect();
    if (left.rectCount() > kMostPieces) left = left.boundingRect();
    for (const QRect& piece : left) seen_.push_back({whole.element, whole.rect, whole.clip & piece});
  }

  void hideBehind(const Element& element, const QRectF& rect, const QRectF& clip) {
    if (!isLarge(rect) || open_.rectCount() > kMostRectangles) return;
    for (const QRectF& part : opaqueParts(element, rect)) {
      const QRect hidden = coveredPixels(part & clip, scale_.device);
      if (hidden.isEmpty()) continue;
      open_ -= hidden;
      isAnythingHidden_ = true;
    }
  }

  QRegion open_;  ///< the pixels that nothing has hidden yet
  bool isAnythingHidden_ = false;
  const PixelScale& scale_;
  std::vector<SeenElement> seen_;
};

}  // namespace

QList<QRectF> opaqueParts(const Element& element, const QRectF& rect) {
  switch (element.kind()) {
    case Kind::PictureBox:
      return isSeeThrough(element) ? QList<QRectF>() : QList{rect};
    case Kind::Label:
      return cast<Label>(element).isOpaque() ? QList{rect} : QList<QRectF>();
    case Kind::Button:
      return fullParts(cast<Button>(element), rect);
    default:
      return {};
  }
}

std::vector<SeenElement> seenElements(const Element& container, const QRectF& exposed,
                                      const PixelScale& scale) {
  Look look(exposed, scale);
  look.within(container, QPointF(), exposed);
  return std::move(look).backToFront();
}

std::vector<SeenElement> seenElements(const Stage& stage, const QRectF& exposed, const PixelScale& scale) {
  Look look(exposed, scale);
  look.on(stage, exposed);
  return std::move(look).backToFront();
}

}  // namespace veneerer
