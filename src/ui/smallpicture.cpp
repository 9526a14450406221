#include "ui/smallpicture.h"

#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr QSize kRoom(160, 100);  // device-independent pixels

}  // namespace

SmallPicture::SmallPicture(const Ui& ui, const QString& name) : fetcher_(ui.pictures) {
  setAccessibleName(name);
  setAlignment(Qt::AlignCenter);
  setFrameShape(QFrame::StyledPanel);
  setMinimumSize(kRoom / 2);
  setFixedHeight(kRoom.height() + 2 * frameWidth());
  connect(&watcher_, &QFutureWatcherBase::finished, this, &SmallPicture::fetched);
}

bool SmallPicture::show(const QString& path) {
  clear();
  const Picture picture = path.isEmpty() ? Picture() : store_.load(path);
  if (picture.isNull()) return false;
  watcher_.setFuture(fetcher_.thumbnail(picture, kRoom * devicePixelRatioF()));
  return true;
}

void SmallPicture::clear() {
  watcher_.setFuture(QFuture<QImage>());
  setText(UiTexts::tr("No picture"));
}

void SmallPicture::fetched() {
  if (watcher_.future().resultCount() == 0) return;
  QImage image = watcher_.result();
  if (image.isNull()) return setText(UiTexts::tr("Can't be shown"));
  image.setDevicePixelRatio(devicePixelRatioF());
  setPixmap(QPixmap::fromImage(image));
}

}  // namespace veneerer
