#include "problems/skinhints.h"

#include "problems/elementjudge.h"
#include "problems/unnamedfiles.h"

namespace veneerer {

Findings skinHints(const State& state, const SkinFolder& folder, const Screen& screen,
                   const RecordPlaces& places, int touch) {
  ElementJudge judge(state, screen, places, touch);
  Findings findings;
  for (const Family* family : state.form1.families())
    for (const Element* element : family->members())
      findings << judge.hintsAtOnce(*element) << judge.hintsByGround(*element);
  return findings << unnamedFiles(state, folder);
}

}  // namespace veneerer
