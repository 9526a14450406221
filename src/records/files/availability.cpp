// Which buttons of the jukebox are on offer: check boxes of Form2 only, no element of the canvas.
#include "records/recordfiles.h"

namespace veneerer {

Layout lockedButtonFile(State& state) {
  Layout file(state, "locked_button.ini");
  for (const Array<CheckBox>* boxes : {&state.form2.Check1, &state.form2.Check2, &state.form2.Check3})
    for (Element* box : boxes->members()) file.checkValue(static_cast<CheckBox&>(*box));
  return file;
}

}  // namespace veneerer
