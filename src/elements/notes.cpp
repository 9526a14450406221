#include "elements/notes.h"

namespace veneerer {

void Notes::say(const QString& note) {
  texts_.append(note);
  if (listener_) listener_(note);
}

}  // namespace veneerer
