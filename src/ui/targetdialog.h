// The dialog that asks where an export goes.
#pragma once

#include <QString>
#include <QWidget>

namespace veneerer {

struct ExportTarget {
  QString title;   ///< of the dialog
  QString filter;  ///< "Web Pages (*.html)"
  QString suffix;  ///< a name typed without one gets this
  QString name;    ///< that is proposed, with its suffix
};

/// The file that the operator chooses, empty on cancel. The dialog chooses a name; it makes, renames and
/// deletes nothing.
QString chooseTarget(const ExportTarget& target, QWidget* owner);

}  // namespace veneerer
