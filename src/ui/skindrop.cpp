#include "ui/skindrop.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "ui/exchangecommands.h"

namespace veneerer {

namespace {

/// Empty for anything but one archive of this machine.
QString archiveOf(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  const QString file = urls.size() == 1 ? urls.first().toLocalFile() : QString();
  const bool isArchive =
      file.endsWith(QStringLiteral(".zip"), Qt::CaseInsensitive) && QFileInfo(file).isFile();
  return isArchive ? file : QString();
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

// Whoever dropped it waits for the event's end, and the import may ask and take long.
bool SkinDrop::eventFilter(QObject*, QEvent* event) {
  if (!isOfDrop(*event)) return false;
  auto& drop = static_cast<QDropEvent&>(*event);
  const QString file = archiveOf(*drop.mimeData());
  if (file.isEmpty() || hands_.isActing()) return false;
  drop.setDropAction(Qt::CopyAction);
  drop.accept();
  if (event->type() == QEvent::Drop)
    QTimer::singleShot(0, this, [this, file] {
      if (!hands_.isActing()) importArchive(hands_, window_, file);
    });
  return true;
}

}  // namespace veneerer
