#include "designer/refusalnotes.h"

namespace veneerer {

RefusalNotes::RefusalNotes(State& state) : state_(state) {
  state.board.tellRefusals([this](const Refusal& refusal) { tell(refusal); });
}

RefusalNotes::~RefusalNotes() {
  state_.board.tellRefusals({});
}

void RefusalNotes::tell(const Refusal& refusal) {
  QString note = refusal.text;
  note.replace(u'\n', u' ');
  if (told_ && told_->contains(note)) return;
  if (told_) told_->insert(note);
  state_.notes.say(note);
}

RefusalNotes::Command::Command(RefusalNotes& notes) : notes_(notes) {
  notes_.told_.emplace();
}

RefusalNotes::Command::~Command() {
  notes_.told_.reset();
}

}  // namespace veneerer
