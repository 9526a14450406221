// Which buttons of the jukebox are on offer: the check boxes of Form2, family by family, which isn't the
// order of the frames that show them. No element of the canvas changes by them, a reload leaves them as they
// are, and the file is also written alone by Form2's own command.
#include "records/recordfiles.h"

namespace veneerer {

Layout lockedButtonFile(State& state) {
  Layout file(state, "locked_button.ini");
  for (const Array<CheckBox>* boxes : {&state.form2.Check1, &state.form2.Check2, &state.form2.Check3})
    for (Element* box : boxes->members()) file.checkValue(cast<CheckBox>(*box));
  return file;
}

}  // namespace veneerer
