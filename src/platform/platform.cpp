#include "platform/platform.h"

#include <QStringList>
#include <algorithm>
#include <utility>

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

QString Dialogs::chooseFile(const QString& filter) {
  return givenFile_.isEmpty() ? showFileDialog(filter) : std::exchange(givenFile_, QString());
}

bool fitsFilter(const QString& filter, const QString& path) {
  const QStringList patterns = filter.section(u'|', 1).split(u';', Qt::SkipEmptyParts);
  return std::ranges::any_of(patterns, [&](const QString& pattern) {
    return path.endsWith(QStringView(pattern).mid(1), Qt::CaseInsensitive);
  });
}

}  // namespace veneerer
