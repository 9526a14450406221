// The waits of the dialog "Open Skin", on copies of the shipped Skins.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>

#include "gallery/skinglance.h"
#include "platform/skinfolder.h"
#include "support/files.h"
#include "support/scriptedplatform.h"
#include "ui/openskindialog.h"

namespace veneerer {
namespace {

/// A root with so many Skins.
struct Root {
  explicit Root(int skins) {
    const QDir shipped(QStringLiteral(VENEERER_SOURCE_DIR "/Skins"));
    const QStringList names = shipped.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (int i = 0; i < skins; ++i) {
      const QString name =
          QStringLiteral("%1 %2").arg(i, 2, 10, QLatin1Char('0')).arg(names[i % names.size()]);
      const test::Files files = test::filesBelow(shipped.filePath(names[i % names.size()]));
      for (auto file = files.cbegin(); file != files.cend(); ++file)
        test::writeBytes(folder.filePath(QStringLiteral("Skins/") + name + QLatin1Char('/') + file.key()),
                         *file);
    }
    world.platform.folder = ProgramFolder{folder.path()};
  }

  QTemporaryDir folder;
  test::ScriptedPlatform world{ScriptedDialogs::Unexpected::Agree};
};

void glanceAtASkin(benchmark::State& run) {
  const Root root(3);
  const QStringList names = SkinsRoot(root.world.platform.folder).skins();
  const QString name = names[static_cast<qsizetype>(run.range(0))];
  for (auto _ : run)
    benchmark::DoNotOptimize(glanceAt(root.world.platform, name, OpenSkinDialog::kPictureSide));
}
BENCHMARK(glanceAtASkin)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void countFindingsOfASkin(benchmark::State& run) {
  const Root root(3);
  const QStringList names = SkinsRoot(root.world.platform.folder).skins();
  const QString name = names[static_cast<qsizetype>(run.range(0))];
  for (auto _ : run) benchmark::DoNotOptimize(countFindings(root.world.platform, name));
}
BENCHMARK(countFindingsOfASkin)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

/// When what comes in the dialog has come, and how long a press would have waited at worst; milliseconds.
struct Course {
  double shown = 0;
  double firstPicture = 0;
  double lastPicture = 0;
  double lastFinding = 0;
  double longestBlock = 0;
};

Course openDialog(const Root& root, const QStringList& skins) {
  Course course;
  QElapsedTimer time;
  time.start();
  const auto now = [&] { return static_cast<double>(time.nsecsElapsed()) / 1e6; };
  Glancer glancer(root.world.platform, OpenSkinDialog::kPictureSide);
  QObject::connect(&glancer, &Glancer::seen, [&](const QString& skin) {
    if (course.firstPicture == 0) course.firstPicture = now();
    (glancer.findings(skin) < 0 ? course.lastPicture : course.lastFinding) = now();
  });
  OpenSkinDialog dialog(glancer, skins, skins.first(), QString(), nullptr);
  dialog.show();
  course.shown = now();
  const auto isDone = [&](const QString& skin) { return glancer.findings(skin) >= 0; };
  while (!std::ranges::all_of(skins, isDone)) {
    const double before = now();
    QCoreApplication::processEvents();
    course.longestBlock = std::max(course.longestBlock, now() - before);
    QThread::usleep(500);
  }
  return course;
}

// From the command to the last finding of 30 Skins.
void openTheGallery(benchmark::State& run) {
  const Root root(30);
  const QStringList skins = SkinsRoot(root.world.platform.folder).skins();
  Course course;
  for (auto _ : run) course = openDialog(root, skins);
  run.counters["shown_ms"] = course.shown;
  run.counters["first_picture_ms"] = course.firstPicture;
  run.counters["last_picture_ms"] = course.lastPicture;
  run.counters["last_finding_ms"] = course.lastFinding;
  run.counters["longest_block_ms"] = course.longestBlock;
}
BENCHMARK(openTheGallery)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

}  // namespace
}  // namespace veneerer
