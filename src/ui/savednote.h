// The note of a save as the status line shows it.
#pragma once

#include <QString>
#include <QTime>

#include "elements/notes.h"

namespace veneerer {

/// Adds to the note of a save in which folder and when it was written; any other note is as it was said.
QString shownNote(const QString& note, NoteKind kind, const QString& folder, const QTime& now);

}  // namespace veneerer
