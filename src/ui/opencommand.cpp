#include "ui/opencommand.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

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

/// The one folder or file that is dragged; empty for anything else.
QString draggedPath(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 ? QDir::cleanPath(urls.first().toLocalFile()) : QString();
}

class SkinDrop : public QObject {
public:
  SkinDrop(QWidget& window, const Ui& ui) : QObject(&window), ui_(ui) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    const bool isDrop = event->type() == QEvent::Drop;
    if (event->type() != QEvent::DragEnter && !isDrop) return false;
    auto& drag = static_cast<QDropEvent&>(*event);
    const QString path = draggedPath(*drag.mimeData());
    if (!isTaken(path)) return false;
    drag.acceptProposedAction();
    // Whoever drags waits for the drop's end, and a load may fail.
    if (isDrop)
      QMetaObject::invokeMethod(
          this, [this, path] { take(path); }, Qt::QueuedConnection);
    return true;
  }

private:
  /// What a drop can mean: a Skin's folder.
  static bool isTaken(const QString& path) { return !path.isEmpty() && QFileInfo(path).isDir(); }

  void take(const QString& path) {
    if (ui_.hands.isActing()) return;
    const QFileInfo skin(path);
    const QFileInfo root(SkinsRoot(ui_.hands.platform().folder).path());
    if (QFileInfo(skin.absolutePath()).canonicalFilePath() == root.canonicalFilePath())
      return ui_.hands.openSkin(skin.fileName());
    ui_.hands.state().notes.say(
        QStringLiteral("Only Skins of %1 can be opened here: copy %2 there, or start the designer with it.")
            .arg(root.filePath(), skin.fileName()));
  }

  Ui ui_;
};

}  // namespace

void makeOpenCommand(QAction& open, const Ui& ui) {
  const double scale = qApp->devicePixelRatio();
  auto* glancer = new Glancer(ui.hands.platform(), static_cast<int>(OpenSkinDialog::kPictureSide * scale));
  glancer->setParent(&open);
  QObject::connect(&open, &QAction::triggered, glancer, [ui, glancer] { chooseSkin(ui, *glancer); });
}

void openDropped(QWidget& window, const Ui& ui) {
  new SkinDrop(window, ui);
}

}  // namespace veneerer
