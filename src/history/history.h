// Undo and redo: what the actions of the operator changed, step by step.
#pragma once

#include <QUndoStack>
#include <functional>

#include "history/recording.h"

namespace veneerer {

/// Records the changes of a state. Restoring runs no handler; views hear of it. Files are never undone.
class History {
public:
  /// How many steps are kept; older ones are forgotten.
  static constexpr int kMostSteps = 1000;

  /// The only recorder of that state, which must outlive it. The function is called behind each undo and
  /// redo, to bring up to date what isn't restored but shows what is.
  History(State& state, std::function<void()> refresh);
  ~History();
  History(const History&) = delete;
  History& operator=(const History&) = delete;

  /// One action of the operator: what changes in its life is one step, none when nothing does. Of actions
  /// inside one another the outermost counts.
  class Action {
  public:
    /// The step is named after what it changed unless a name is given, by the outermost action that gives
    /// one. An action that joins makes one step with the action directly ahead of it that joined the same.
    explicit Action(History& history, const QString& name = {}, const void* joins = nullptr);
    ~Action();
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

  private:
    History& history_;
  };

  /// What changes in its life is no step: it follows the disk, which no undo brings back.
  class Pause {
  public:
    explicit Pause(History& history);
    ~Pause();
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;

  private:
    History& history_;
    bool wasRecording_;
  };

  /// From now on there are steps; the state as it is now is the first clean place.
  void start();
  /// The state is what the disk holds: as it is now, or when the action that runs ends.
  void markClean();
  /// Whether the state may differ from that of the clean place.
  bool isModified() const { return !stack_.isClean(); }

  /// The next action is a step of its own, whatever it joins.
  void settle() { joined_ = nullptr; }

  /// False when there is nothing to undo, or to redo.
  bool undo();
  bool redo();
  void undoAll() { stack_.setIndex(0); }
  void redoAll() { stack_.setIndex(stack_.count()); }

  /// The steps, for what shows them. Its undo, redo and setIndex may be called at any time but in an action.
  QUndoStack& stack() { return stack_; }

private:
  class Step;

  void commit();
  void setClean();
  void restore(const Changes& changes, int screen, Way way);
  void goToScreen(int screen);

  State& state_;
  std::function<void()> refresh_;
  Recording recording_;
  QUndoStack stack_;
  bool isRecording_ = false;
  int depth_ = 0;           ///< of the actions that run
  bool endsClean_ = false;  ///< when these have ended
  QString name_;
  const void* joined_ = nullptr;  ///< what the last action joined
  int joint_ = 0;                 ///< the same for all actions that make one step
};

}  // namespace veneerer
