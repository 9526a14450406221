#include "ui/savednote.h"

#include "elements/printable.h"
#include "records/writefiles.h"

namespace veneerer {

QString shownNote(const QString& note, const QString& folder, const QTime& now) {
  if (!isSavedNote(note)) return note;
  return shownText(note + QStringLiteral(" (%1, %2)").arg(now.toString(QStringLiteral("HH:mm:ss")), folder));
}

}  // namespace veneerer
