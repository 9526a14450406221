// What an element refuses is told as a note.
#pragma once

#include <QSet>
#include <optional>

#include "forms/state.h"

namespace veneerer {

class RefusalNotes {
public:
  explicit RefusalNotes(State& state);
  ~RefusalNotes();
  RefusalNotes(const RefusalNotes&) = delete;
  RefusalNotes& operator=(const RefusalNotes&) = delete;

  /// One command of the operator. What it is refused is told once, on however many elements.
  class Command {
  public:
    explicit Command(RefusalNotes& notes);
    ~Command();
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

  private:
    RefusalNotes& notes_;
  };

private:
  void tell(const Refusal& refusal);

  State& state_;
  std::optional<QSet<QString>> told_;  ///< by the command that runs
};

}  // namespace veneerer
