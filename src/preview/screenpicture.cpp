#include "preview/screenpicture.h"

#include <QPainter>

#include "canvas/screens.h"
#include "painting/canvassize.h"

namespace veneerer {

QImage canvasPicture(const Form1& form, const Screen& screen, CanvasPainter& painter) {
  QImage image(canvasSize(form, screen).pixels, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter canvas(&image);
  painter.paint(canvas, form, image.rect(), 1 / screen.twipsPerPixelX(), 1 / screen.twipsPerPixelY());
  return image;
}

QImage screenPicture(State& state, const Screen& screen, CanvasPainter& painter, int entry) {
  painter.setStage(stageOf(state, entry));
  const QImage image = canvasPicture(state.form1, screen, painter);
  painter.setStage(std::nullopt);
  return image;
}

QSize reducedTo(QSize picture, int mostSide) {
  const QSize within = picture.scaled(mostSide, mostSide, Qt::KeepAspectRatio);
  return picture.boundedTo(within).expandedTo(QSize(1, 1));
}

}  // namespace veneerer
