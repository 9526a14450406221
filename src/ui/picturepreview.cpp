#include "ui/picturepreview.h"

#include <QFileInfo>
#include <QVBoxLayout>
#include <QtConcurrentRun>

#include "images/picturedecoding.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr QSize kPicture(220, 180);

QString sizeText(const Sketch& sketch) {
  if (!sketch.size.isValid()) return UiTexts::tr("Not a picture");
  const QString size = UiTexts::tr("%1 × %2 pixels").arg(sketch.size.width()).arg(sketch.size.height());
  return sketch.image.isNull() ? UiTexts::tr("%1\nCan't be shown").arg(size) : size;
}

}  // namespace

Sketch sketchOf(const QString& path, QSize largest) {
  return {decodeThumbnail(path, largest), costOfPicture(path).size};
}

PicturePreview::PicturePreview(QWidget* parent) : QWidget(parent), picture_(new QLabel), text_(new QLabel) {
  picture_->setFixedSize(kPicture);
  picture_->setAlignment(Qt::AlignCenter);
  picture_->setFrameShape(QFrame::StyledPanel);
  text_->setAlignment(Qt::AlignHCenter);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(picture_);
  column->addWidget(text_);
  column->addStretch();
  connect(&watcher_, &QFutureWatcherBase::finished, this, &PicturePreview::fetched);
}

void PicturePreview::showFile(const QString& path) {
  // Who runs through a folder waits for the last file alone.
  watcher_.cancel();
  picture_->clear();
  text_->clear();
  if (!QFileInfo(path).isFile()) return watcher_.setFuture({});
  const QSize room = (picture_->contentsRect().size() * devicePixelRatioF());
  watcher_.setFuture(QtConcurrent::run(sketchOf, path, room));
}

void PicturePreview::fetched() {
  if (watcher_.isCanceled()) return;
  const Sketch sketch = watcher_.result();
  QPixmap pixmap = QPixmap::fromImage(sketch.image);
  pixmap.setDevicePixelRatio(devicePixelRatioF());
  picture_->setPixmap(pixmap);
  text_->setText(sizeText(sketch));
}

}  // namespace veneerer
