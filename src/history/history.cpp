#include "history/history.h"

#include "canvas/screens.h"
#include "history/stepname.h"

namespace veneerer {

/// One entry of the stack.
class History::Step : public QUndoCommand {
public:
  Step(History& history, Changes changes)
      : history_(history),
        changes_(std::move(changes)),
        isNamed_(!history.name_.isEmpty()),
        joint_(history.joined_ ? history.joint_ : -1),
        screen_(history.state_.form6.Combo6->listIndex()) {
    setText(isNamed_ ? history.name_ : stepName(history.state_, changes_));
  }

  int id() const override { return joint_; }

  bool mergeWith(const QUndoCommand* later) override {
    changes_.add(static_cast<const Step*>(later)->changes_);
    if (!isNamed_) setText(stepName(history_.state_, changes_));
    setObsolete(changes_.isEmpty());
    return true;
  }

  void undo() override { history_.restore(changes_, screen_, Way::Back); }

  // The stack asks for it at once when the step comes in; what it would do has been done.
  void redo() override {
    if (std::exchange(isDone_, true)) history_.restore(changes_, screen_, Way::Forth);
  }

private:
  History& history_;
  Changes changes_;
  bool isNamed_;
  bool isDone_ = false;
  int joint_;
  int screen_;
};

History::History(State& state, std::function<void()> refresh)
    : state_(state), refresh_(std::move(refresh)), recording_(state) {
  stack_.setUndoLimit(kMostSteps);
  state_.board.recordWith([this](const Change& change) {
    if (isRecording_) recording_.note(change);
  });
}

History::~History() {
  state_.board.recordWith({});
}

History::Action::Action(History& history, const QString& name, const void* joins) : history_(history) {
  if (history_.depth_++ == 0) {
    // What changed outside of any action is a step too, or those around it couldn't be undone exactly.
    history_.commit();
    if (!joins || joins != history_.joined_) ++history_.joint_;
    history_.joined_ = joins;
  }
  if (history_.name_.isEmpty()) history_.name_ = name;
}

History::Action::~Action() {
  if (--history_.depth_ > 0) return;
  history_.commit();
  history_.name_.clear();
  if (std::exchange(history_.endsClean_, false)) history_.setClean();
}

History::Pause::Pause(History& history) : history_(history), wasRecording_(history.isRecording_) {
  history_.commit();
  history_.settle();
  history_.isRecording_ = false;
}

History::Pause::~Pause() {
  history_.isRecording_ = wasRecording_;
}

void History::start() {
  recording_.take();
  stack_.clear();
  isRecording_ = true;
}

void History::markClean() {
  if (depth_ > 0)
    endsClean_ = true;
  else
    setClean();
}

void History::setClean() {
  commit();
  settle();
  stack_.setClean();
}

void History::commit() {
  Changes changes = recording_.take();
  if (!changes.isEmpty()) stack_.push(new Step(*this, std::move(changes)));
}

bool History::undo() {
  commit();
  if (!stack_.canUndo()) return false;
  stack_.undo();
  return true;
}

bool History::redo() {
  commit();
  if (!stack_.canRedo()) return false;
  stack_.redo();
  return true;
}

void History::restore(const Changes& changes, int screen, Way way) {
  settle();
  isRecording_ = false;
  apply(state_, changes, way);
  goToScreen(screen);
  refresh_();
  isRecording_ = true;
}

void History::goToScreen(int screen) {
  if (screen < 0) return;
  const ViewsOnly views(state_.board);
  ComboBox& screens = *state_.form6.Combo6;
  if (screens.listIndex() == screen && isScreenShown(state_, screen)) return;
  screens.select(screen);
  showScreen(state_, screen);
}

}  // namespace veneerer
