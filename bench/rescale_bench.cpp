// The rescale's image step on 25 files of 1024x768, beside the tool that a skin maker would otherwise use for
// it on the same files. Compare the two figures of one run, not of two machines.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtConcurrentMap>
#include <cmath>

#include "tools/imagestep.h"

namespace veneerer {
namespace {

constexpr int kPictures = 25;
constexpr QSize kFrom(1024, 768);
constexpr QSize kTo(1280, 960);

/// Soft shades with some grain, as a photograph has.
QImage photograph() {
  QImage image(kFrom, QImage::Format_RGB32);
  for (int y = 0; y < kFrom.height(); ++y)
    for (int x = 0; x < kFrom.width(); ++x) {
      const int grain = (x * 7919 + y * 104729) % 17;
      const int shade = static_cast<int>(110 + 90 * std::sin(x / 97.0) * std::cos(y / 61.0));
      image.setPixel(x, y, qRgb(shade + grain, shade / 2 + grain, 200 - shade / 2 + grain));
    }
  return image;
}

/// A folder of 25 picture files that can be set back to what they were.
class Pictures {
public:
  Pictures() {
    photograph().save(folder_.filePath(QStringLiteral("original.jpg")), "JPG", 90);
    for (int i = 0; i < kPictures; ++i) paths_ << folder_.filePath(QStringLiteral("%1.jpg").arg(i));
  }
  const QStringList& paths() const { return paths_; }
  void restore() {
    for (const QString& path : paths_) {
      QFile::remove(path);
      QFile::copy(folder_.filePath(QStringLiteral("original.jpg")), path);
    }
  }

private:
  QTemporaryDir folder_;
  QStringList paths_;
};

template <class Step>
void onFreshFiles(benchmark::State& run, Step step) {
  Pictures pictures;
  for (auto _ : run) {
    run.PauseTiming();
    pictures.restore();
    run.ResumeTiming();
    step(pictures.paths());
  }
}

void rescaleFiles(benchmark::State& run) {
  onFreshFiles(run, [](const QStringList& paths) {
    QList<ImageJob> jobs;
    Disk disk;
    for (const QString& path : paths) jobs.append({QFileInfo(path).path(), path, path, {kTo}});
    QtConcurrent::blockingMap(
        jobs, [&](const ImageJob& job) { benchmark::DoNotOptimize(resampleFile(job, disk)); });
  });
}
BENCHMARK(rescaleFiles)->Unit(benchmark::kMillisecond)->UseRealTime();

void rescaleFilesByMogrify(benchmark::State& run) {
  const QString mogrify = QStandardPaths::findExecutable(QStringLiteral("mogrify"));
  if (mogrify.isEmpty()) {
    run.SkipWithError("mogrify isn't installed");
    return;
  }
  onFreshFiles(run, [&](const QStringList& paths) {
    const QStringList options = {QStringLiteral("-resize"),          QStringLiteral("1280x960!"),
                                 QStringLiteral("-quality"),         QStringLiteral("90"),
                                 QStringLiteral("-sampling-factor"), QStringLiteral("2x2")};
    QProcess::execute(mogrify, options + paths);
  });
}
BENCHMARK(rescaleFilesByMogrify)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace veneerer
