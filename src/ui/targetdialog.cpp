#include "ui/targetdialog.h"

#include <QDir>
#include <QFileDialog>

namespace veneerer {

QString chooseTarget(const ExportTarget& target, QWidget* owner) {
  QFileDialog dialog(owner, target.title, QDir::homePath(), target.filter);
  dialog.setOption(QFileDialog::ReadOnly);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(target.suffix);
  dialog.selectFile(target.name);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace veneerer
