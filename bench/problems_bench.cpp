// The waits of judging the default Skin while it is worked on.
#include <benchmark/benchmark.h>

#include "loadeddesigner.h"
#include "problems/problemswatch.h"
#include "recolouring/faintcaptions.h"
#include "recolouring/storedcolours.h"

namespace veneerer {
namespace {

// All that a new Skin costs, decoding its pictures included.
void judgeSkin(benchmark::State& run) {
  LoadedDesigner skin;
  for (auto _ : run) {
    ProblemsWatch watch(skin.designer.state(), skin.designer.skinFolder(), skin.platform.screen);
    while (watch.work(100)) {
    }
    benchmark::DoNotOptimize(watch.findings());
  }
}
BENCHMARK(judgeSkin)->Unit(benchmark::kMillisecond);

// The part of it that doesn't wait for idle time.
void judgeSkinAtOnce(benchmark::State& run) {
  LoadedDesigner skin;
  for (auto _ : run)
    ProblemsWatch watch(skin.designer.state(), skin.designer.skinFolder(), skin.platform.screen);
}
BENCHMARK(judgeSkinAtOnce)->Unit(benchmark::kMillisecond);

void judgeElement(benchmark::State& run) {
  LoadedDesigner skin;
  ProblemsWatch watch(skin.designer.state(), skin.designer.skinFolder(), skin.platform.screen);
  Button& key = skin.designer.state().form1.lvButtons_H6[3];
  float left = key.left();
  for (auto _ : run) {
    key.setLeft(left = 1000 - left);
    watch.judge(key);
    benchmark::DoNotOptimize(watch.of(key));
  }
}
BENCHMARK(judgeElement)->Unit(benchmark::kMillisecond);

// The dearest single change: it moves lines of the cover file.
void judgeCoverCount(benchmark::State& run) {
  LoadedDesigner skin;
  State& state = skin.designer.state();
  ProblemsWatch watch(state, skin.designer.skinFolder(), skin.platform.screen);
  for (auto _ : run) watch.judge(*state.globals.LastCoverIndex);
}
BENCHMARK(judgeCoverCount)->Unit(benchmark::kMillisecond);

// One screen with its grounds, as it is judged again after a change, element by element.
void judgeScreenLater(benchmark::State& run) {
  LoadedDesigner skin;
  ProblemsWatch watch(skin.designer.state(), skin.designer.skinFolder(), skin.platform.screen);
  while (watch.work(100)) {
  }
  for (auto _ : run) {
    watch.judge(skin.designer.state().form1.lvButtons_H6[3]);
    while (watch.work(100)) {
    }
  }
}
BENCHMARK(judgeScreenLater)->Unit(benchmark::kMillisecond);

// All captions of the Skin in other colours, which a slider's steps share.
void judgeRecoloured(benchmark::State& run) {
  LoadedDesigner skin;
  State& state = skin.designer.state();
  const std::vector<ColourPlace> places = storedColours(state);
  FaintCaptions faint(state, skin.platform.screen);
  int hue = 0;
  for (auto _ : run) {
    faint.judge(recoloured(places, {{}, {.hue = ++hue % 180}}), 0);
    while (faint.work(100)) {
    }
  }
}
BENCHMARK(judgeRecoloured)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veneerer
