#include "ui/savednote.h"

#include "elements/printable.h"

namespace veneerer {

QString shownNote(const QString& note, NoteKind kind, const QString& folder, const QTime& now) {
  if (kind != NoteKind::Saved) return note;
  return shownText(note + QStringLiteral(" (%1, %2)").arg(now.toString(QStringLiteral("HH:mm:ss")), folder));
}

}  // namespace veneerer
