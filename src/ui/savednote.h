// The note of a save as the status line shows it.
#pragma once

#include <QString>
#include <QTime>

namespace veneerer {

/// Adds to the note of a save in which folder and when it was written; any other note is as it was said.
QString shownNote(const QString& note, const QString& folder, const QTime& now);

}  // namespace veneerer
