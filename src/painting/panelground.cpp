#include "painting/panelground.h"

#include "elements/family.h"

namespace veneerer {

namespace {

// Lightens a dark ground and darkens a light one, as far as texts on either can still be read.
constexpr QColor kVeil(128, 128, 128, 72);

bool isScreen(const Element& element) {
  return element.family()->name() == u"Picture1";
}

bool isPanel(const Element& element) {
  return element.kind() == Kind::PictureBox && element.isVisible() && !isScreen(element);
}

class Coats {
public:
  Coats(const PixelScale& scale, const Dress& dress) : scale_(scale), dress_(dress) {}

  void add(const PictureBox& box, const QRectF& rect) {
    if (box.backStyle() != BackStyle::Opaque) addBeneath(box, rect);
    addOwn(box, rect);
  }

  std::vector<GroundPiece> pieces;

private:
  void addOwn(const PictureBox& box, const QRectF& rect) {
    pieces.push_back({rect, colourOf(box), &box.picture()});
  }

  QColor colourOf(const PictureBox& box) const {
    switch (box.backStyle()) {
      case BackStyle::Opaque:
        return dress_.of(box, Property::BackColor).toQColor();
      case BackStyle::Veil:
        return kVeil;
      default:
        return {};
    }
  }

  void addBeneath(const PictureBox& box, const QRectF& rect) {
    const Element& holder = *box.container();
    const QPointF origin = rect.topLeft() - QPointF(box.left() * scale_.x, box.top() * scale_.y);
    addHolder(holder, QRectF(origin, QSizeF(holder.width() * scale_.x, holder.height() * scale_.y)));
    // A screen stands in the place of what the frame shows there.
    if (isScreen(box)) return;
    for (const Element* below : holder.children()) {
      if (below == &box) return;
      if (!isPanel(*below)) continue;
      const std::optional<QRectF> place = pixelRect(*below, origin, scale_);
      // What lies beneath a clear one has its coats already.
      if (place && place->intersects(rect)) addOwn(cast<PictureBox>(*below), *place);
    }
  }

  void addHolder(const Element& holder, const QRectF& rect) {
    if (holder.kind() == Kind::PictureBox) return add(cast<PictureBox>(holder), rect);
    pieces.push_back(
        {rect, dress_.of(holder, Property::BackColor).toQColor(), &holder.as<Picture>(Property::Picture)});
  }

  const PixelScale& scale_;
  const Dress& dress_;
};

}  // namespace

std::vector<GroundPiece> groundOf(const PictureBox& box, const QRectF& rect, const PixelScale& scale,
                                  const Dress& dress) {
  Coats coats(scale, dress);
  coats.add(box, rect);
  return std::move(coats.pieces);
}

}  // namespace veneerer
