#include "elements/notes.h"

#include "elements/printable.h"

namespace veneerer {

void Notes::say(const QString& note, NoteKind kind) {
  texts_.append(shownText(note));
  if (listener_) listener_(texts_.last(), kind);
}

}  // namespace veneerer
