#include "ui/picturedialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>

#include "ui/picturepreview.h"

namespace veneerer {

namespace {

constexpr QSize kDialog(860, 480);

// Skins come from systems where case doesn't count.
QString imagesFolder(const QString& skin) {
  for (const QString& name : QDir(skin).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
    if (name.compare(u"images", Qt::CaseInsensitive) == 0) return skin + u'/' + name;
  return skin;
}

}  // namespace

QString pictureFolder(const SkinFolder& skin, const QString& lastFolder) {
  if (!lastFolder.isEmpty() && skin.contains(lastFolder)) return lastFolder;
  return skin.exists() ? imagesFolder(skin.path()) : QFileInfo(skin.path()).path();
}

QString runPictureDialog(const QString& folder, const QString& filter, QWidget* parent) {
  QFileDialog dialog(parent, QString(), folder, filter);
  // A desktop's own dialog has no room for the preview.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  // The dialog chooses a file; it makes, renames and deletes none.
  dialog.setOption(QFileDialog::ReadOnly);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.resize(kDialog);
  auto* preview = new PicturePreview;
  if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout()))
    grid->addWidget(preview, 0, grid->columnCount(), grid->rowCount(), 1);
  QObject::connect(&dialog, &QFileDialog::currentChanged, preview, &PicturePreview::showFile);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace veneerer
