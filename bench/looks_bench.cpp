// The pictures that follow each change in the dialog "New Skin".
#include <benchmark/benchmark.h>

#include <QSemaphore>
#include <QThreadPool>
#include <array>

#include "looks/glimpse.h"
#include "looks/looks.h"

namespace veneerer::looks {
namespace {

// On the thread on which the dialog draws them: on the first one painting would spread over threads again.
void glimpseAtALook(benchmark::State& run) {
  const Look& look = *allLooks()[static_cast<std::size_t>(run.range(0))];
  constexpr std::array kShown = {0, 9, 1, 15};
  QSemaphore drawn;
  for (auto _ : run) {
    QThreadPool::globalInstance()->start([&] {
      benchmark::DoNotOptimize(glimpseOf(defaultsOf(look), kShown, QSize(300, 240)));
      drawn.release();
    });
    drawn.acquire();
  }
  run.SetLabel(look.name);
}
BENCHMARK(glimpseAtALook)
    ->DenseRange(0, 7)
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veneerer::looks
