#include "platform/platform.h"

#include "elements/numbers.h"
#include "elements/printable.h"

namespace veneerer {

void Dialogs::inform(const QString& title, const QString& text) {
  showMessage(shownText(title), shownText(text));
}

bool Dialogs::ask(const QString& title, const QString& text) {
  return showQuestion(shownText(title), shownText(text));
}

void Platform::runAside(const std::function<void()>& work) const {
  if (background)
    background->run(work);
  else
    work();
}

QImage decodeAside(const Platform& platform, const Picture& picture) {
  QImage image;
  platform.runAside([&] { image = picture.image(); });
  return image;
}

std::optional<std::int32_t> PixelsToTwips(const Screen& screen, double pixels, Axis axis) {
  return toWhole(pixels * 1440 / (axis == Axis::X ? screen.dpiX : screen.dpiY));
}

}  // namespace veneerer
