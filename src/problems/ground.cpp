#include "problems/ground.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "canvas/screens.h"
#include "elements/controls.h"
#include "elements/label.h"
#include "images/picturedecoding.h"
#include "painting/buttonface.h"
#include "painting/hittest.h"
#include "painting/panelground.h"
#include "painting/scaledimages.h"
#include "problems/contrast.h"
#include "problems/screenplace.h"

namespace veneerer {

namespace {

// Larger grounds and faces are painted smaller: pixels.
constexpr double kMostPixels = 64.0 * 1024;
// What may be painted for one caption, pixels, and how much dearer those of a button's face are.
constexpr double kMostWork = 1024.0 * 1024;
constexpr double kFaceCost = 4;
// No place is farther away than this, pixels.
constexpr QRectF kReach(-1e6, -1e6, 2e6, 2e6);

/// The factor by which an area is made smaller.
double reductionOf(QSizeF size) {
  return std::min(1.0, std::sqrt(kMostPixels / std::max(1.0, size.width() * size.height())));
}

QSize reducedSize(QSizeF size) {
  return (size * reductionOf(size)).toSize().expandedTo(QSize(1, 1));
}

FaceLook lookOf(const Button& button, const Dress& dress, QSize size, double scale,
                const PictureSample& sample) {
  const bool isCovered = !sample.image.isNull();
  return {.size = size,
          .scale = scale,
          .shape = button.buttonShape(),
          .style = button.buttonStyle(),
          .gradient = button.gradientMode(),
          .back = dress.of(button, Property::BackColor).toQColor().rgb(),
          .second = dress.of(button, Property::GradientColor).toQColor().rgb(),
          .pictureSize = isCovered ? static_cast<int>(button.pictureSize()) : 0,
          .pictureKey = isCovered ? sample.image.cacheKey() : 0};
}

bool coversFace(const Button& button) {
  return button.isCustomShaped() || static_cast<int>(button.pictureSize()) >= kFirstCoveringSize;
}

/// Paints from the back to the front until the element has been painted that is judged.
class GroundPainter {
public:
  GroundPainter(QPainter& painter, const State& state, PictureSamples& pictures, ButtonFaces& faces,
                const PixelScale& scale, const Dress& dress, const Element& last)
      : painter_(painter),
        state_(state),
        pictures_(pictures),
        faces_(faces),
        scale_(scale),
        dress_(dress),
        last_(last) {}

  bool isComplete() const { return isComplete_; }

  void paintFrame(const QRectF& clip) {
    const Form1& form = state_.form1;
    painter_.fillRect(clip, form.backColor().toQColor());
    paintNatural(form.picture(), QPointF(), clip);
    if (!paintChildren(form, QPointF(), clip)) paint(form.Picture1[0], QPointF(), clip);
  }

  /// True once the last element has been painted, or no more may be.
  bool paint(const Element& element, QPointF origin, const QRectF& clip) {
    const bool isLast = &element == &last_;
    const std::optional<QRectF> rect = pixelRect(element, origin, scale_);
    if (!rect || !rect->intersects(clip)) return isLast;
    const QRectF inner = *rect & clip;
    if (!isSeeThrough(element) && spend(inner.width() * inner.height())) paintOne(element, *rect, inner);
    return isLast || !isComplete_ || paintChildren(element, rect->topLeft(), inner);
  }

private:
  bool spend(double pixels) {
    work_ += pixels * painter_.transform().m11() * painter_.transform().m22();
    isComplete_ &= work_ <= kMostWork;
    return isComplete_;
  }

  bool paintChildren(const Element& container, QPointF origin, const QRectF& clip) {
    return std::ranges::any_of(container.children(), [&](const Element* child) {
      return child->isVisible() && !isScreen(state_, *child) && paint(*child, origin, clip);
    });
  }

  PictureSample sampleOf(const Picture& picture) {
    const PictureSample* sample = pictures_.of(picture);
    isComplete_ &= sample != nullptr;
    return sample ? *sample : PictureSample();
  }

  void paintNatural(const Picture& picture, QPointF at, const QRectF& clip) {
    const PictureSample sample = sampleOf(picture);
    drawWithin(painter_, QRectF(at, QSizeF(sample.size)), sample.image, clip);
  }

  void paintOver(const Picture& picture, const QRectF& rect, const QRectF& clip) {
    drawWithin(painter_, rect, sampleOf(picture).image, clip);
  }

  void paintOne(const Element& element, const QRectF& rect, const QRectF& clip) {
    switch (element.kind()) {
      case Kind::Label:
        if (const auto& label = cast<Label>(element); label.isOpaque())
          painter_.fillRect(clip, dress_.of(label, Property::BackColor).toQColor());
        return;
      case Kind::Button:
        return paintButton(cast<Button>(element), rect, clip);
      case Kind::PictureBox:
        return paintPanel(cast<PictureBox>(element), rect, clip);
      default:
        return paintPicture(element, rect, clip);
    }
  }

  void paintPanel(const PictureBox& box, const QRectF& rect, const QRectF& clip) {
    for (const GroundPiece& piece : groundOf(box, rect, scale_, dress_)) {
      if (piece.colour.isValid()) painter_.fillRect(piece.rect & clip, piece.colour);
      paintNatural(*piece.picture, piece.rect.topLeft(), piece.rect & clip);
    }
  }

  void paintPicture(const Element& element, const QRectF& rect, const QRectF& clip) {
    if (!element.has(Property::Picture)) return;
    const Picture& picture = element.as<Picture>(Property::Picture);
    if (element.kind() == Kind::AlphaImage)
      paintOver(picture, fitted(sampleOf(picture).image.size(), rect), clip);
    else if (element.kind() == Kind::ImageBox && !element.as<bool>(Property::Stretch))
      paintNatural(picture, rect.topLeft(), clip);
    else
      paintOver(picture, rect, clip);
  }

  void paintButton(const Button& button, const QRectF& rect, const QRectF& clip) {
    const QSize size = reducedSize(rect.size());
    work_ += kFaceCost * static_cast<double>(pixelsOf(size));
    const PictureSample sample = coversFace(button) ? sampleOf(button.picture()) : PictureSample();
    const FaceLook look = lookOf(button, dress_, size, reductionOf(rect.size()), sample);
    drawWithin(painter_, rect, faces_.face(look, sample.image), clip);
  }

  QPainter& painter_;
  const State& state_;
  PictureSamples& pictures_;
  ButtonFaces& faces_;
  const PixelScale& scale_;
  const Dress& dress_;
  const Element& last_;
  double work_ = 0;
  bool isComplete_ = true;
};

QPointF originOf(const Element& element, const PixelScale& scale) {
  return element.container() ? pixelPlace(*element.container(), scale).topLeft() : QPointF();
}

}  // namespace

std::optional<double> Ground::luminance(const Element& element, const QRectF& part, const Dress& dress) {
  if (!kReach.contains(part)) return {};
  const QRect region = part.toAlignedRect();
  const double factor = reductionOf(region.size());
  QImage image(reducedSize(region.size()), QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.scale(factor, factor);
  painter.translate(-region.topLeft());
  GroundPainter ground(painter, state_, pictures_, faces_, scale_, dress, element);
  const int entry = screenEntryOf(state_, element);
  if (entry == 0) {
    ground.paintFrame(region);
  } else {
    const Element* screen = &element;
    while (!isScreen(state_, *screen)) screen = screen->container();
    ground.paint(*screen, originOf(*screen, scale_), region);
  }
  painter.end();
  return ground.isComplete() ? std::optional(meanLuminance(image)) : std::nullopt;
}

}  // namespace veneerer
