#include "problems/hints.h"

#include <cmath>

#include "elements/button.h"
#include "elements/printable.h"
#include "painting/buttonface.h"
#include "problems/contrast.h"
#include "problems/screenplace.h"
#include "problems/texts.h"

namespace veneerer {

namespace {

constexpr double kRounding = 0.05;  // pixels, of places told in twips

PixelScale scaleOf(const Screen& screen) {
  return {1 / screen.twipsPerPixelX(), 1 / screen.twipsPerPixelY()};
}

QString captionOf(const Element& element) {
  return excerpt(element.as<QString>(Property::Caption));
}

QString number(double value) {
  return QString::number(value, 'f', value == std::round(value) ? 0 : 1);
}

QString sides(QSizeF size) {
  return QStringLiteral("%1 x %2").arg(number(size.width()), number(size.height()));
}

/// The property by which one rectangle leaves the other.
Property sideOutside(const QRectF& inner, const QRectF& outer) {
  if (inner.left() < outer.left()) return Property::Left;
  if (inner.top() < outer.top()) return Property::Top;
  return inner.right() > outer.right() ? Property::Width : Property::Height;
}

bool isFar(double one, double other) {
  return one > 2 * other || other > 2 * one;
}

}  // namespace

Hints::Hints(const State& state, const Screen& screen, int touch)
    : state_(state), scale_(scaleOf(screen)), touch_(touch) {}

QList<Hint> Hints::atOnce(const Element& element) {
  QList<Hint> hints;
  const auto tell = [&](Property property, const QString& text) {
    if (!text.isEmpty()) hints.append({property, text});
    return !text.isEmpty();
  };
  if (!isShownOnScreen(state_, element)) return hints;
  hints << outside(element);
  if (tell(Property::Left, hidden(element))) return hints;
  const QRectF place = pixelPlace(element, scale_);
  tell(Property::Width,
       small(element, place.width(), ProblemTexts::tr("the button is %1 pixels wide, a finger needs %2")));
  tell(Property::Height,
       small(element, place.height(), ProblemTexts::tr("the button is %1 pixels high, a finger needs %2")));
  tell(Property::Caption, unfit(element));
  tell(Property::FontName, fontMissing(element));
  tell(Property::Picture, pictureFar(element));
  return hints;
}

QList<Hint> Hints::byGround(const Element& element) {
  const QString text = faint(element);
  return text.isEmpty() ? QList<Hint>() : QList<Hint>{{Property::ForeColor, text}};
}

QList<Hint> Hints::outside(const Element& element) const {
  const Element& container = *element.container();
  const QRectF inner = pixelPlace(element, scale_);
  const QRectF outer = pixelPlace(container, scale_);
  const QRectF widened = outer.adjusted(-kRounding, -kRounding, kRounding, kRounding);
  if (widened.contains(inner)) return {};
  const QString text = inner.intersects(outer) ? ProblemTexts::tr("it lies partly outside %1")
                                               : ProblemTexts::tr("it lies wholly outside %1");
  return {{sideOutside(inner, widened), text.arg(container.key())}};
}

QString Hints::hidden(const Element& element) const {
  const Element* hider = hiderOf(state_, element, scale_);
  return hider ? ProblemTexts::tr("%1 hides all of it").arg(hider->key()) : QString();
}

QString Hints::small(const Element& element, double side, const QString& text) const {
  if (element.kind() != Kind::Button || side > touch_ - kRounding) return {};
  return text.arg(number(side)).arg(touch_);
}

QString Hints::unfit(const Element& element) {
  // Letters keep clear of the ends of their line.
  constexpr double kSlack = 1;
  const std::optional<CaptionLayout> caption = captions_.of(element);
  if (!caption) return {};
  const bool isWide = caption->size.width() > caption->room.width() + kSlack;
  const bool isHigh = caption->size.height() > caption->room.height() + kSlack;
  if (!isWide && !isHigh) return {};
  const QString text =
      isWide ? ProblemTexts::tr("the caption \"%1\" doesn't fit: it needs %2 pixels across of %3")
             : ProblemTexts::tr("the caption \"%1\" doesn't fit: it needs %2 pixels down of %3");
  return text.arg(captionOf(element), number(isWide ? caption->size.width() : caption->size.height()),
                  number(isWide ? caption->room.width() : caption->room.height()));
}

QString Hints::fontMissing(const Element& element) {
  const bool isText = element.kind() == Kind::Label || element.kind() == Kind::Button;
  const QString name = isText ? element.as<QString>(Property::FontName) : QString();
  if (name.isEmpty() || fonts_.has(name)) return {};
  return ProblemTexts::tr("this machine has no font \"%1\"").arg(excerpt(name));
}

// A small picture beside a caption is shown in a size of its own.
bool Hints::isSmallPicture(const Element& element) const {
  if (element.kind() != Kind::Button) return false;
  const auto& button = cast<Button>(element);
  return !button.isCustomShaped() && static_cast<int>(button.pictureSize()) < kFirstCoveringSize;
}

QString Hints::pictureFar(const Element& element) {
  if (!element.has(Property::Picture) || isSmallPicture(element)) return {};
  const Picture& picture = element.as<Picture>(Property::Picture);
  if (picture.isNull() || picture.isDrawn()) return {};
  const QSizeF own = pictures_.sizeOf(picture);
  const QSizeF shown = pixelPlace(element, scale_).size();
  if (own.isEmpty() || (!isFar(own.width(), shown.width()) && !isFar(own.height(), shown.height())))
    return {};
  return ProblemTexts::tr("its picture is %1 pixels, the element %2").arg(sides(own), sides(shown));
}

QString Hints::faint(const Element& element) {
  const std::optional<SeenCaption> caption = contrasts_.seen(element);
  if (!caption) return {};
  const std::optional<double> contrast = contrasts_.of(*caption);
  if (!contrast || *contrast >= caption->least) return {};
  return ProblemTexts::tr("the caption \"%1\" has a contrast of %2 to what lies beneath, %3 is the least")
      .arg(captionOf(element), contrastText(*contrast), number(caption->least));
}

}  // namespace veneerer
