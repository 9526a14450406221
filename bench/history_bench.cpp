// The waits of undo and redo, and of finding an element.
#include <benchmark/benchmark.h>

#include "editing/outline.h"
#include "loadeddesigner.h"

namespace veneerer {
namespace {

std::vector<Element*> colouredIn(State& state) {
  std::vector<Element*> elements;
  for (const Family* family : state.form1.families())
    for (Element* element : family->members())
      if (element->has(Property::ForeColor)) elements.push_back(element);
  return elements;
}

// One step of one value, the value itself included.
void recordAStep(benchmark::State& run) {
  LoadedDesigner skin;
  Button& button = skin.designer.state().form1.lvButtons_H1[2];
  std::int32_t colour = 0;
  for (auto _ : run) skin.designer.setProperty({&button}, Property::ForeColor, Colour(++colour & 0xFFFFFF));
}
BENCHMARK(recordAStep)->Unit(benchmark::kMicrosecond);

void undoAndRedoAWholeSkinsColours(benchmark::State& run) {
  LoadedDesigner skin;
  skin.designer.setProperty(colouredIn(skin.designer.state()), Property::ForeColor, Colour(0x123456));
  for (auto _ : run) {
    skin.designer.history().undo();
    skin.designer.history().redo();
  }
}
BENCHMARK(undoAndRedoAWholeSkinsColours)->Unit(benchmark::kMillisecond);

void findElements(benchmark::State& run) {
  LoadedDesigner skin;
  const std::vector<OutlineEntry> entries = outlineOf(skin.designer.state());
  for (auto _ : run) {
    const QStringList words = queryWords(QStringLiteral("screen play 3"));
    std::size_t found = 0;
    for (const OutlineEntry& entry : entries) found += matches(entry, words) ? 1 : 0;
    benchmark::DoNotOptimize(found);
  }
}
BENCHMARK(findElements)->Unit(benchmark::kMillisecond);

void readTheOutlineAnew(benchmark::State& run) {
  LoadedDesigner skin;
  for (auto _ : run) benchmark::DoNotOptimize(outlineOf(skin.designer.state()));
}
BENCHMARK(readTheOutlineAnew)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veneerer
