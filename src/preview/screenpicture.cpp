#include "preview/screenpicture.h"

#include <QPainter>
#include <functional>

#include "canvas/screens.h"
#include "painting/canvassize.h"

namespace veneerer {

namespace {

QImage paintedIn(QSize size, const Form1& form, const Screen& screen, CanvasPainter& painter) {
  const QSize whole = canvasSize(form, screen).pixels;
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter canvas(&image);
  canvas.scale(double(size.width()) / whole.width(), double(size.height()) / whole.height());
  painter.paint(canvas, form, QRect(QPoint(), whole), 1 / screen.twipsPerPixelX(),
                1 / screen.twipsPerPixelY());
  return image;
}

QImage staged(State& state, CanvasPainter& painter, int entry, const std::function<QImage()>& paint) {
  painter.setStage(stageOf(state, entry));
  const QImage image = paint();
  painter.setStage(std::nullopt);
  return image;
}

}  // namespace

QImage canvasPicture(const Form1& form, const Screen& screen, CanvasPainter& painter) {
  return paintedIn(canvasSize(form, screen).pixels, form, screen, painter);
}

QImage screenPicture(State& state, const Screen& screen, CanvasPainter& painter, int entry) {
  return staged(state, painter, entry, [&] { return canvasPicture(state.form1, screen, painter); });
}

QImage screenSketch(State& state, const Screen& screen, CanvasPainter& painter, int entry, int mostSide) {
  const QSize whole = canvasSize(state.form1, screen).pixels;
  const QImage image = staged(state, painter, entry, [&] {
    return paintedIn(reducedTo(whole, 2 * mostSide), state.form1, screen, painter);
  });
  return image.scaled(reducedTo(whole, mostSide), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QSize reducedTo(QSize picture, int mostSide) {
  const QSize within = picture.scaled(mostSide, mostSide, Qt::KeepAspectRatio);
  return picture.boundedTo(within).expandedTo(QSize(1, 1));
}

}  // namespace veneerer
