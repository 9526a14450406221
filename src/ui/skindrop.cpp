#include "ui/skindrop.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "platform/skinfolder.h"
#include "ui/exchangecommands.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

/// The one folder or archive of this machine that is dragged, empty for anything else.
QString draggedSkin(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  const QString path = urls.size() == 1 ? QDir::cleanPath(urls.first().toLocalFile()) : QString();
  const QFileInfo info(path);
  const bool isArchive = info.isFile() && path.endsWith(QStringLiteral(".zip"), Qt::CaseInsensitive);
  return isArchive || (!path.isEmpty() && info.isDir()) ? path : QString();
}

bool isOfDrop(const QEvent& event) {
  return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
         event.type() == QEvent::Drop;
}

}  // namespace

SkinDrop::SkinDrop(Operator& hands, QWidget& window) : QObject(&window), hands_(hands), window_(window) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

// Whoever dropped it waits for the event's end, and what comes of it may ask and take long.
bool SkinDrop::eventFilter(QObject*, QEvent* event) {
  if (!isOfDrop(*event)) return false;
  auto& drop = static_cast<QDropEvent&>(*event);
  const QString path = draggedSkin(*drop.mimeData());
  if (path.isEmpty() || hands_.isActing()) return false;
  drop.setDropAction(Qt::CopyAction);
  drop.accept();
  if (event->type() == QEvent::Drop) QTimer::singleShot(0, this, [this, path] { take(path); });
  return true;
}

void SkinDrop::take(const QString& path) {
  if (hands_.isActing()) return;
  if (QFileInfo(path).isDir())
    open(path);
  else
    importArchive(hands_, window_, path);
}

void SkinDrop::open(const QString& folder) {
  const QFileInfo skin(folder);
  const QFileInfo root(SkinsRoot(hands_.platform().folder).path());
  if (QFileInfo(skin.absolutePath()).canonicalFilePath() == root.canonicalFilePath())
    return hands_.openSkin(skin.fileName());
  hands_.state().notes.say(
      UiTexts::tr("Only Skins of %1 can be opened here: copy %2 there, or start the designer with it.")
          .arg(root.filePath(), skin.fileName()));
}

}  // namespace veneerer
