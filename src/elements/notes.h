// Notes: single sentences for the status line.
#pragma once

#include <QStringList>
#include <functional>

namespace veneerer {

enum class NoteKind {
  Plain,
  Saved,  ///< what a save wrote
};

/// What the operator should know and needn't answer. A note never stops anything and is never a box.
class Notes {
public:
  using Listener = std::function<void(const QString& note, NoteKind kind)>;

  /// Adds a note, one sentence of plain text of which shownText() is kept, and tells it to the listener.
  void say(const QString& note, NoteKind kind = NoteKind::Plain);

  /// All notes since the start, in order.
  const QStringList& texts() const { return texts_; }

  /// The status line that shows the notes; there is one at most.
  void setListener(Listener listener) { listener_ = std::move(listener); }

private:
  QStringList texts_;
  Listener listener_;
};

}  // namespace veneerer
