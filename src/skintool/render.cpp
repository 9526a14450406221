#include "skintool/render.h"

#include <QDir>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <future>

#include "canvas/screens.h"
#include "painting/canvaspainter.h"
#include "records/recorderror.h"

namespace veneerer {

namespace {

constexpr int kMostPixels = 16384;
// Of 0 to 100 in Qt's terms: the fastest compression that still shrinks.
constexpr int kFastPng = 80;

int pixels(float twips, double twipsPerPixel) {
  return static_cast<int>(std::clamp(std::round(twips / twipsPerPixel), 1.0, double(kMostPixels)));
}

bool writePng(const QImage& image, const QString& path) {
  QImageWriter writer(path, "png");
  writer.setQuality(kFastPng);
  return writer.write(image);
}

QString fileName(int entry, const QString& name) {
  return QStringLiteral("%1 %2.png").arg(entry, 2, 10, QLatin1Char('0')).arg(name);
}

void finish(std::future<bool>& writing, const QString& name) {
  if (writing.valid() && !writing.get())
    throw RecordError(name, 0, {}, {}, QStringLiteral("the picture can't be written"));
}

}  // namespace

QImage renderScreen(Designer& designer, CanvasPainter& painter, int entry) {
  State& state = designer.state();
  const Screen& screen = designer.platform().screen;
  state.form6.Combo6->select(entry);
  QImage image(pixels(state.form1.width(), screen.twipsPerPixelX()),
               pixels(state.form1.height(), screen.twipsPerPixelY()), QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter canvas(&image);
  painter.paint(canvas, state.form1, image.rect(), 1 / screen.twipsPerPixelX(), 1 / screen.twipsPerPixelY());
  return image;
}

void renderScreens(Designer& designer, const QString& folder, const QStringList& only) {
  if (!QDir().mkpath(folder))
    throw RecordError(folder, 0, {}, {}, QStringLiteral("the folder can't be made"));
  CanvasPainter painter;
  // One picture is encoded while the next one is painted.
  std::future<bool> writing;
  QString name;
  const QStringList entries = designer.state().form6.Combo6->list();
  for (int entry = 0; entry < entries.size(); ++entry) {
    if (!only.isEmpty() && !only.contains(entries[entry])) continue;
    const QImage image = renderScreen(designer, painter, entry);
    finish(writing, name);
    name = fileName(entry, entries[entry]);
    writing = std::async(std::launch::async, writePng, image, QDir(folder).filePath(name));
  }
  finish(writing, name);
}

}  // namespace veneerer
