#include "painting/anigif.h"

#include <QBuffer>
#include <QImageReader>
#include <QMovie>
#include <utility>

#include "elements/family.h"
#include "files/plainfile.h"
#include "images/picturedecoding.h"
#include "images/pictureformat.h"
#include "painting/hittest.h"

namespace veneerer {

namespace {

constexpr const char* kGif = "gif";

/// The size of an animation's frames; empty for a file that isn't one.
QSize frameSize(const QByteArray& gif) {
  if (formatOf(gif) != PictureFormat::Gif) return {};
  QBuffer buffer;
  buffer.setData(gif);
  buffer.open(QIODevice::ReadOnly);
  return QImageReader(&buffer, kGif).size();
}

}  // namespace

// A picture that is shown, and its movie if it can be played.
struct ucAniGIF::Playing {
  explicit Playing(const Picture& shown) : picture(shown) {
    buffer.setData(readPlainFile(picture.path(), kMostPlayedBytes).bytes);
    pixels = pixelsOf(frameSize(buffer.data()));
    if (pixels == 0 || pixels > kMostPlayedPixels) return;
    buffer.open(QIODevice::ReadOnly);
    movie = std::make_unique<QMovie>(&buffer, kGif);
  }

  Picture picture;  // kept alive, so that its id stays its own
  QBuffer buffer;   // the movie reads from it again and again
  qint64 pixels = 0;
  std::unique_ptr<QMovie> movie;
  std::vector<const AnimatedFrame*> elements;
};

namespace {

bool matters(const Change& change) {
  return change.property == Property::Visible ||
         (change.property == Property::Picture && change.element.kind() == Kind::AnimatedFrame);
}

}  // namespace

ucAniGIF::ucAniGIF(Window& window, Repaint repaint) : window_(window), repaint_(std::move(repaint)) {
  for (Family* family : window.families())
    for (Element* element : family->members())
      if (element->kind() == Kind::AnimatedFrame) elements_.push_back(&cast<AnimatedFrame>(*element));
  pending_.setSingleShot(true);
  pending_.callOnTimeout([this] { update(); });
  // A screen switch shows and hides hundreds of elements: one look afterwards is enough.
  watching_ = window.board().watch([this](const Change& change) {
    if (&change.element.window() == &window_ && matters(change) && !pending_.isActive()) pending_.start(0);
  });
  update();
}

ucAniGIF::~ucAniGIF() = default;

void ucAniGIF::setStage(std::optional<Stage> stage) {
  stage_ = std::move(stage);
  update();
}

void ucAniGIF::setWatched(bool isWatched) {
  if (std::exchange(isWatched_, isWatched) != isWatched) pending_.start(0);
}

bool ucAniGIF::isSeen(const Element& element) const {
  if (!isWatched_) return false;
  return stage_ ? isShownOn(*stage_, element) : isShown(element);
}

QImage ucAniGIF::frame(const Element& element) const {
  if (element.kind() != Kind::AnimatedFrame) return {};
  const auto playing = playing_.value(element.as<Picture>(Property::Picture).id());
  return playing && playing->movie ? playing->movie->currentImage() : QImage();
}

void ucAniGIF::update() {
  QHash<quintptr, std::vector<const AnimatedFrame*>> shown;
  std::vector<const Picture*> order;
  for (const AnimatedFrame* element : elements_) {
    if (element->picture().path().isEmpty() || !isSeen(*element)) continue;
    auto& elements = shown[element->picture().id()];
    if (elements.empty()) order.push_back(&element->picture());
    elements.push_back(element);
  }
  // What goes makes room for what comes.
  playing_.removeIf([&](auto entry) { return !shown.contains(entry.key()); });
  for (const Picture* picture : order) play(*picture)->elements = shown.value(picture->id());
}

std::shared_ptr<ucAniGIF::Playing> ucAniGIF::play(const Picture& picture) {
  std::shared_ptr<Playing>& playing = playing_[picture.id()];
  if (playing) return playing;
  const qint64 others = playedPixels();
  playing = std::make_shared<Playing>(picture);
  if (others + playing->pixels > kMostPlayedTogether) playing->movie.reset();
  if (playing->movie) {
    QObject::connect(playing->movie.get(), &QMovie::frameChanged,
                     [this, which = playing.get()] { tell(*which); });
    playing->movie->start();
  }
  return playing;
}

qint64 ucAniGIF::playedPixels() const {
  qint64 pixels = 0;
  for (const std::shared_ptr<Playing>& playing : playing_)
    if (playing && playing->movie) pixels += playing->pixels;
  return pixels;
}

void ucAniGIF::tell(const Playing& playing) const {
  for (const AnimatedFrame* element : playing.elements) repaint_(*element);
}

}  // namespace veneerer
