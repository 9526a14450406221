// The waits of opening and saving a Skin, headless: the records of the default Skin, without decoding a
// picture.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <memory>

#include "designer/designer.h"
#include "skin/startup.h"
#include "support/scriptedplatform.h"

namespace veneerer {
namespace {

struct World : test::ScriptedPlatform {
  World() : ScriptedPlatform(ScriptedDialogs::Unexpected::Agree) {
    platform.folder = ProgramFolder{QStringLiteral(VENEERER_SOURCE_DIR)};
  }
};

void makeDesigner(benchmark::State& run) {
  World world;
  for (auto _ : run) Designer designer(world.platform);
}
BENCHMARK(makeDesigner)->Unit(benchmark::kMillisecond);

void startAndLoad(benchmark::State& run) {
  World world;
  for (auto _ : run) {
    Designer designer(world.platform);
    designer.startUp();
  }
}
BENCHMARK(startAndLoad)->Unit(benchmark::kMillisecond);

void reload(benchmark::State& run) {
  World world;
  Designer designer(world.platform);
  designer.startUp();
  for (auto _ : run) designer.reload(QString::fromLatin1(kDefaultSkin));
}
BENCHMARK(reload)->Unit(benchmark::kMillisecond);

void save(benchmark::State& run) {
  World world;
  Designer designer(world.platform);
  designer.startUp();
  const QTemporaryDir target;
  designer.state().form4.Text2->setText(QStringLiteral("covers.cov"));
  for (auto _ : run) designer.saveTo(SkinFolder(target.path()));
}
BENCHMARK(save)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veneerer
