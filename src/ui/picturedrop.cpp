#include "ui/picturedrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "canvas/buttonpicture.h"

namespace veneerer {

namespace {

class PictureDrop : public QObject {
public:
  PictureDrop(QWidget& widget, Operator& hands, std::function<Element*(QPointF)> elementAt)
      : QObject(&widget), hands_(hands), elementAt_(std::move(elementAt)) {
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
  }

protected:
  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::DragEnter:
      case QEvent::DragMove:
        consider(*static_cast<QDropEvent*>(event));
        return true;
      case QEvent::Drop:
        drop(*static_cast<QDropEvent*>(event));
        return true;
      default:
        return false;
    }
  }

private:
  static QString fileOf(const QDropEvent& event) {
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
  }

  Element* taker(const QDropEvent& event) const {
    const QString path = fileOf(event);
    Element* element = path.isEmpty() || hands_.isActing() ? nullptr : elementAt_(event.position());
    return element && hands_.takesPicture(*element, path) ? element : nullptr;
  }

  // Only what may enter is asked about again at other places.
  void consider(QDropEvent& event) const {
    const bool isEntering =
        event.type() == QEvent::DragEnter && fitsFilter(QString::fromLatin1(kButtonPictures), fileOf(event));
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(isEntering || taker(event));
  }

  void drop(QDropEvent& event) const {
    Element* element = taker(event);
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(element);
    if (element) hands_.drop(*element, fileOf(event));
  }

  Operator& hands_;
  std::function<Element*(QPointF)> elementAt_;
};

}  // namespace

void takePictures(QWidget& widget, Operator& hands, std::function<Element*(QPointF place)> elementAt) {
  new PictureDrop(widget, hands, std::move(elementAt));
}

}  // namespace veneerer
