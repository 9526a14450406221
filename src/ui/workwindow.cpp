#include "ui/workwindow.h"

#include <QCoreApplication>
#include <QLabel>

#include "elements/printable.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kMoment = 300;  // ms
constexpr int kFrame = 30;    // ms
constexpr int kWidth = 420;   // pixels

}  // namespace

WorkWindow::WorkWindow(const QString& title, QWidget* owner) : QProgressDialog(owner) {
  setWindowTitle(title);
  setWindowModality(Qt::ApplicationModal);
  setMinimumDuration(kMoment);
  setMinimumWidth(kWidth);
  // What is shown is a file's name, which may be long and look like markup.
  auto* file = new QLabel;
  file->setTextFormat(Qt::PlainText);
  file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  setLabel(file);
  setCancelButtonText(UiTexts::tr("&Cancel"));
  age_.start();
  sinceEvents_.start();
}

bool WorkWindow::tell(int done, int total, const QString& file) {
  if (maximum() != total) setMaximum(total);
  setLabelText(shownText(file));
  setValue(done);
  // The toolkit's own does neither while one step goes on and on.
  if (age_.hasExpired(kMoment) && done < total && !wasCanceled()) show();
  if (sinceEvents_.hasExpired(kFrame)) {
    QCoreApplication::processEvents(isVisible() ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    sinceEvents_.restart();
  }
  return !wasCanceled();
}

}  // namespace veneerer
