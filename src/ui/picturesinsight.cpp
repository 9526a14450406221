#include "ui/picturesinsight.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "images/picturecache.h"
#include "images/picturedecoding.h"
#include "painting/canvassize.h"

namespace veneerer {

namespace {

// What the pictures of screens that aren't seen any more may take with all others: going back to one of them
// decodes nothing. Those of a screen take as much as the canvas at the most, and the frame's once more.
constexpr qint64 kKeptBytes = 16LL * 1024 * 1024;
constexpr qint64 kKeptCanvases = 3;
constexpr qint64 kPixelBytes = 4;

qint64 keptBytes(QSize canvas) {
  return std::min(kDecodedBytes, kKeptBytes + kKeptCanvases * kPixelBytes * pixelsOf(canvas));
}

void gather(const Element& element, QList<Picture>& pictures) {
  if (element.has(Property::Picture)) pictures.append(element.as<Picture>(Property::Picture));
  for (const Element* child : element.children())
    if (child->isVisible()) gather(*child, pictures);
}

}  // namespace

PicturesInSight::PicturesInSight(Operator& hands, std::function<void()> looked)
    : state_(hands.state()), screen_(hands.screen()), looked_(std::move(looked)) {
  watching_ = state_.board.watch([this](const Change& change) { changed(change); });
}

void PicturesInSight::changed(const Change& change) {
  const bool isChoice = &change.element == &*state_.form6.Combo6 && change.property == Property::ListIndex;
  if (!isChoice || std::exchange(isTurning_, true)) return;
  // The screen becomes visible behind this.
  QMetaObject::invokeMethod(this, &PicturesInSight::lookAtCanvas, Qt::QueuedConnection);
}

void PicturesInSight::lookAtCanvas() {
  isTurning_ = false;
  Stage shown;
  std::ranges::copy_if(state_.form1.children(), std::back_inserter(shown), &Element::isVisible);
  lookAt(shown);
}

void PicturesInSight::lookAt(const Stage& stage) {
  QList<Picture> pictures = {state_.form1.picture()};
  for (const Element* element : stage) gather(*element, pictures);
  const QSize canvas = canvasSize(state_.form1, screen_).pixels;
  state_.pictures.look(pictures, isAllSeen_ ? kDecodedBytes : keptBytes(canvas));
  looked_();
}

}  // namespace veneerer
