#include "ui/picturepreview.h"

#include <QFileInfo>
#include <QImageReader>
#include <QVBoxLayout>
#include <QtConcurrentRun>

namespace veneerer {

namespace {

constexpr QSize kPicture(220, 180);
constexpr qint64 kMostPixels = 48 << 20;

QString sizeText(const Sketch& sketch) {
  if (!sketch.size.isValid()) return QStringLiteral("Not a picture");
  const QString size = QStringLiteral("%1 × %2 pixels").arg(sketch.size.width()).arg(sketch.size.height());
  return sketch.image.isNull() ? size + QStringLiteral("\nCan't be shown") : size;
}

}  // namespace

Sketch sketchOf(const QString& path, QSize largest) {
  if (!QFileInfo(path).isFile()) return {};
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  if (!size.isValid() || qint64(size.width()) * size.height() > kMostPixels) return {{}, size};
  const bool fits = size.boundedTo(largest) == size;
  if (!fits) reader.setScaledSize(size.scaled(largest, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  return {reader.read(), size};
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
