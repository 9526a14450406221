#include "ui/thumbnail.h"

#include <QPainter>

#include "painting/scaledimages.h"
#include "ui/badge.h"
#include "ui/diskfollower.h"
#include "ui/frames.h"
#include "ui/picturedrop.h"

namespace veneerer {

namespace {

constexpr QSize kThumbnail(100, 60);

}  // namespace

Thumbnail::Thumbnail(const Ui& ui, Element& element)
    : element_(element), pictures_(ui.pictures), disk_(ui.disk) {
  bindPainted(ui, element, *this);
  connect(&watcher_, &QFutureWatcherBase::finished, this, &Thumbnail::fetched);
  connect(&ui.disk, &DiskFollower::missingChanged, this, qOverload<>(&QWidget::update));
  takePictures(*this, ui.hands, [&element](QPointF) { return &element; });
}

QSize Thumbnail::sizeHint() const {
  return kThumbnail;
}

QSize Thumbnail::minimumSizeHint() const {
  return kThumbnail / 2;
}

const Picture& Thumbnail::picture() const {
  return element_.as<Picture>(Property::Picture);
}

QSize Thumbnail::devicePixels() const {
  return (size() - QSize(4, 4)) * devicePixelRatioF();
}

void Thumbnail::paintEvent(QPaintEvent*) {
  if (picture().id() != fetchedId_ || devicePixels() != fetchedSize_) fetch();
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(picture().isNull() ? QPalette::Base : QPalette::Mid));
  if (shownId_ == picture().id() && !shown_.isNull()) {
    const QSizeF room = QSizeF(fetchedSize_) / devicePixelRatioF();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(fitted(shown_.size(), centred(room, rect())), shown_);
  } else if (picture().isNull()) {
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(rect(), Qt::AlignCenter, tr("No picture"));
  }
  if (disk_.misses(element_)) paintBadge(painter, badgeRect(rect()));
  paintFrame(painter, *this);
}

void Thumbnail::fetch() {
  fetchedId_ = picture().id();
  fetchedSize_ = devicePixels();
  if (picture().isNull()) return;
  watcher_.setFuture(pictures_.thumbnail(picture(), fetchedSize_));
}

void Thumbnail::fetched() {
  // Another picture may have been asked for meanwhile; the watcher tells of the last one only.
  shown_ = watcher_.result();
  shownId_ = fetchedId_;
  update();
}

}  // namespace veneerer
