#include "ui/opencommand.h"

#include <QApplication>

#include "platform/skinfolder.h"
#include "ui/openskindialog.h"

namespace veneerer {

namespace {

void chooseSkin(const Ui& ui, Glancer& glancer) {
  const SkinsRoot root(ui.hands.platform().folder);
  QString skin;
  {
    OpenSkinDialog dialog(glancer, root.skins(), ui.hands.state().form4.Combo3->text(), root.path(),
                          QApplication::activeWindow());
    if (dialog.exec() == QDialog::Accepted) skin = dialog.skin();
  }
  if (!skin.isEmpty()) ui.hands.openSkin(skin);
}

}  // namespace

void makeOpenCommand(QAction& open, const Ui& ui) {
  const double scale = qApp->devicePixelRatio();
  auto* glancer = new Glancer(ui.hands.platform(), static_cast<int>(OpenSkinDialog::kPictureSide * scale));
  glancer->setParent(&open);
  QObject::connect(&open, &QAction::triggered, glancer, [ui, glancer] { chooseSkin(ui, *glancer); });
}

}  // namespace veneerer
