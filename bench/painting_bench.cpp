// The waits that painting and resampling make: a full repaint, one button face, the image step of a rescale.
#include <benchmark/benchmark.h>

#include <QPainter>

#include "forms/form1.h"
#include "images/cimage.h"
#include "images/cjpeg.h"
#include "painting/buttonface.h"
#include "painting/canvaspainter.h"

namespace veneerer {
namespace {

constexpr QSize kScreen(1024, 768);
constexpr double kPixelsPerTwip = 1.0 / 15;

QImage photograph(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  quint32 noise = 1;
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x) {
      noise = noise * 1664525 + 1013904223;
      const int grain = static_cast<int>(noise >> 28);
      image.setPixel(x, y,
                     qRgb(x * 240 / size.width() + grain, y * 240 / size.height() + grain, 120 + grain));
    }
  return image;
}

void dressButton(Button& button, int number) {
  button.setButtonStyle(number % 8);
  button.setButtonShape(number % 7);
  button.setGradientMode(number % 5);
  button.setBackColor(0x804020);
  button.setGradientColor(0x201008);
  button.setForeColor(0xFFFFFF);
}

// Every element of the canvas stands on the frame, a little apart from the one before, with a text of its
// own.
void spreadOut(Form1& form) {
  int number = 0;
  for (Family* family : form.families())
    for (Element* element : family->members()) {
      element->setContainer(form);
      element->place(static_cast<float>(number % 12 * 1275), static_cast<float>(number / 12 % 30 * 380), 1200,
                     330);
      if (element->has(Property::Caption))
        element->set(Property::Caption, QStringLiteral("Artist %1").arg(number));
      if (element->kind() == Kind::Label) static_cast<Label&>(*element).setOpaque(number % 2);
      if (element->kind() == Kind::Button) dressButton(static_cast<Button&>(*element), number);
      ++number;
    }
}

void fullRepaint(benchmark::State& state) {
  Switchboard board;
  Form1 form(board);
  spreadOut(form);
  form.setPicture(Picture::drawn(photograph(kScreen)));
  CanvasPainter canvas;
  QImage image(kScreen, QImage::Format_RGB32);
  for (auto _ : state) {
    QPainter painter(&image);
    canvas.paint(painter, form, image.rect(), kPixelsPerTwip, kPixelsPerTwip);
  }
}
BENCHMARK(fullRepaint)->Unit(benchmark::kMillisecond);

void firstRepaint(benchmark::State& state) {
  Switchboard board;
  Form1 form(board);
  spreadOut(form);
  QImage image(kScreen, QImage::Format_RGB32);
  for (auto _ : state) {
    CanvasPainter canvas;
    QPainter painter(&image);
    canvas.paint(painter, form, image.rect(), kPixelsPerTwip, kPixelsPerTwip);
  }
}
BENCHMARK(firstRepaint)->Unit(benchmark::kMillisecond);

// What one step of a drag repaints.
void smallRepaint(benchmark::State& state) {
  Switchboard board;
  Form1 form(board);
  spreadOut(form);
  CanvasPainter canvas;
  QImage image(kScreen, QImage::Format_RGB32);
  for (auto _ : state) {
    QPainter painter(&image);
    canvas.paint(painter, form, QRect(300, 300, 100, 30), kPixelsPerTwip, kPixelsPerTwip);
  }
}
BENCHMARK(smallRepaint)->Unit(benchmark::kMicrosecond);

FaceLook lookOf(int style) {
  return {.size = QSize(100, 40),
          .style = style,
          .gradient = 2,
          .back = qRgb(20, 60, 120),
          .second = qRgb(0, 0, 0)};
}

void drawnFace(benchmark::State& state) {
  const FaceLook look = lookOf(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(drawFace(look, QImage(), QSize()));
}
BENCHMARK(drawnFace)->DenseRange(0, 7)->Unit(benchmark::kMicrosecond);

void keptFace(benchmark::State& state) {
  CutOuts cutOuts;
  ScaledImages images;
  ButtonFaces faces(cutOuts, images);
  const FaceLook look = lookOf(0);
  for (auto _ : state) benchmark::DoNotOptimize(faces.face(look, QImage()));
}
BENCHMARK(keptFace);

// Decode, stretch and encode 25 pictures, as the rescale does on one thread.
void imageStep(benchmark::State& state) {
  constexpr int kPictures = 25;
  cImage source;
  source.CopyPicture(photograph(kScreen));
  cJpeg encoder;
  encoder.SampleImage(source);
  const QByteArray file = encoder.encode().bytes;
  for (auto _ : state)
    for (int i = 0; i < kPictures; ++i) {
      cImage picture;
      picture.CopyPicture(QImage::fromData(file, "JPG"));
      cJpeg jpeg;
      jpeg.SampleImage(picture.stretched(QSize(800, 600)));
      benchmark::DoNotOptimize(jpeg.encode());
    }
}
BENCHMARK(imageStep)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veneerer
