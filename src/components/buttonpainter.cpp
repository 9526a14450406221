#include "components/buttonpainter.h"

#include <cmath>

#include "components/clipping.h"
#include "components/colours.h"

namespace veneerer {

void ButtonPainter::paint(QPainter& painter, const Button& button, const QRectF& rect, const QRectF& clip,
                          const PixelScale& scale, const ButtonState&) {
  const QRectF shown = rect & clip;
  painter.fillRect(shown, toQColor(button.backColor()));
  if (!button.picture().image().isNull()) {
    const QSize size = (rect.size() * scale.device).toSize();
    const QImage& image = button.picture().image();
    drawWithin(painter, rect, isKeepable(size) ? images_.scaled(image, size) : image, clip);
  }
  const int height = fontPixels(button.as<float>(Property::FontSize), scale.y);
  if (button.caption().isEmpty() || height == 0) return;
  QString caption = button.caption();
  caption.replace(QStringLiteral("||"), QStringLiteral("\n"));
  const LaidOutText& text =
      texts_.of({caption, button.as<QString>(Property::FontName), height, fontFlags(button),
                 static_cast<int>(std::ceil(rect.width())), button.as<std::int32_t>(Property::CaptionAlign)});
  painter.setPen(toQColor(button.foreColor()));
  drawTextWithin(painter, text, QPointF(rect.x(), rect.y() + (rect.height() - text.height) / 2), shown);
}

}  // namespace veneerer
