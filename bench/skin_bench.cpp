// The waits of opening and saving a Skin, headless: the records of the default Skin, without decoding a
// picture.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <memory>

#include "designer/designer.h"
#include "skin/startup.h"

namespace veneerer {
namespace {

/// Answers OK to every question and chooses nothing.
class AgreeingDialogs : public Dialogs {
public:
  void inform(const QString&, const QString&) override {}
  bool ask(const QString&, const QString&) override { return true; }
  QString chooseFile(const QString&) override { return {}; }
  std::optional<Colour> chooseColour(Colour) override { return std::nullopt; }
  std::optional<FontChoice> chooseFont(const FontChoice&) override { return std::nullopt; }
};

class DefaultSettings : public Settings {
public:
  QString value(const QString&, const QString&, const QString& defaultValue) const override {
    return defaultValue;
  }
};

struct World {
  AgreeingDialogs dialogs;
  DefaultSettings settings;
  Disk disk;
  Platform platform{dialogs, settings, disk, Screen(), ProgramFolder{QStringLiteral(VENEERER_SOURCE_DIR)}};
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
