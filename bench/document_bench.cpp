// The waits of comparing a Skin, of showing all of its screens, and of looking at its files.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QSet>

#include "comparison/comparison.h"
#include "loadeddesigner.h"
#include "preview/screensheet.h"
#include "preview/webpage.h"
#include "skin/startup.h"
#include "ui/filewatch.h"

namespace veneerer {
namespace {

// What a save of it would change, line by line.
void compareWithTheDisk(benchmark::State& run) {
  LoadedDesigner skin;
  for (auto _ : run)
    benchmark::DoNotOptimize(savedDifferences(skin.designer.state(), skin.designer.skinFolder()));
}
BENCHMARK(compareWithTheDisk)->Unit(benchmark::kMillisecond);

void compareTwoSkins(benchmark::State& run) {
  const LoadedDesigner skin;
  const SkinFolder other(skin.platform.folder, QStringLiteral("Copper_Lounge(1024x768)"));
  const SkinFolder own(skin.platform.folder, QString::fromLatin1(kDefaultSkin));
  for (auto _ : run) benchmark::DoNotOptimize(skinDifferences(own, other, skin.platform.screen));
}
BENCHMARK(compareTwoSkins)->Unit(benchmark::kMillisecond);

void sheetOfAllScreens(benchmark::State& run) {
  LoadedDesigner skin;
  for (auto _ : run) benchmark::DoNotOptimize(screenSheet(skin.designer.state(), skin.platform.screen));
}
BENCHMARK(sheetOfAllScreens)->Unit(benchmark::kMillisecond);

void webPageOfAllScreens(benchmark::State& run) {
  LoadedDesigner skin;
  for (auto _ : run)
    benchmark::DoNotOptimize(webPage(skin.designer.state(), skin.platform.screen, QStringLiteral("Skin")));
}
BENCHMARK(webPageOfAllScreens)->Unit(benchmark::kMillisecond);

// What the program does when it gets the focus.
void lookAtAllFiles(benchmark::State& run) {
  LoadedDesigner skin;
  QSet<QString> paths;
  const QString folder = skin.designer.skinFolder().path();
  for (const QString& name : QDir(folder).entryList(QDir::Files)) paths.insert(folder + u'/' + name);
  const Disk disk;
  FileWatch watch(disk);
  watch.watch(paths);
  for (auto _ : run) watch.look();
}
BENCHMARK(lookAtAllFiles)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veneerer
