#include "components/anigif.h"

#include <QImageReader>
#include <QMovie>

#include "components/hittest.h"
#include "elements/family.h"

namespace veneerer {

// A picture that is shown, and its movie if it has more than one frame.
struct ucAniGIF::Playing {
  explicit Playing(const Picture& shown) : picture(shown) {
    if (QImageReader(picture.path()).supportsAnimation()) movie = std::make_unique<QMovie>(picture.path());
  }

  Picture picture;  // kept alive, so that its id stays its own
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
      if (element->kind() == Kind::AnimatedFrame) elements_.push_back(static_cast<AnimatedFrame*>(element));
  pending_.setSingleShot(true);
  pending_.callOnTimeout([this] { update(); });
  // A screen switch shows and hides hundreds of elements: one look afterwards is enough.
  subscription_ = window.notices().subscribe([this](const Change& change) {
    if (&change.element.window() == &window_ && matters(change) && !pending_.isActive()) pending_.start(0);
  });
  update();
}

ucAniGIF::~ucAniGIF() {
  window_.notices().unsubscribe(subscription_);
}

QImage ucAniGIF::frame(const Element& element) const {
  if (element.kind() != Kind::AnimatedFrame) return {};
  const auto playing = playing_.value(element.as<Picture>(Property::Picture).id());
  return playing && playing->movie ? playing->movie->currentImage() : QImage();
}

void ucAniGIF::update() {
  for (const std::shared_ptr<Playing>& playing : std::as_const(playing_)) playing->elements.clear();
  QHash<quintptr, std::shared_ptr<Playing>> shown;
  for (AnimatedFrame* element : elements_) {
    if (element->picture().path().isEmpty() || !isShown(*element)) continue;
    const std::shared_ptr<Playing> playing = play(element->picture());
    playing->elements.push_back(element);
    shown.insert(element->picture().id(), playing);
  }
  playing_ = std::move(shown);
}

std::shared_ptr<ucAniGIF::Playing> ucAniGIF::play(const Picture& picture) {
  std::shared_ptr<Playing>& playing = playing_[picture.id()];
  if (playing) return playing;
  playing = std::make_shared<Playing>(picture);
  if (playing->movie) {
    QObject::connect(playing->movie.get(), &QMovie::frameChanged,
                     [this, which = playing.get()] { tell(*which); });
    playing->movie->start();
  }
  return playing;
}

void ucAniGIF::tell(const Playing& playing) const {
  for (const AnimatedFrame* element : playing.elements) repaint_(*element);
}

}  // namespace veneerer
