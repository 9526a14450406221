#include "ui/application.h"

#include <QClipboard>
#include <QMessageBox>
#include <QPushButton>
#include <QTextStream>

#include "elements/printable.h"
#include "platform/program.h"
#include "records/recorderror.h"
#include "ui/texts.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace veneerer {

namespace {

// Other buttons of a box end it.
void addCopyButton(QMessageBox& box, const QString& text) {
  QPushButton* copy = box.addButton(UiTexts::tr("&Copy"), QMessageBox::ActionRole);
  copy->setToolTip(UiTexts::tr("Put this text on the clipboard"));
  copy->disconnect();
  QObject::connect(copy, &QPushButton::clicked, copy,
                   [text] { QGuiApplication::clipboard()->setText(text); });
}

// Left to itself, glibc learns from the first large picture that is let go to take the next ones from its
// heap, where the small things between them keep the memory from going back to the system.
void giveLargePicturesBack() {
#ifdef __GLIBC__
  constexpr int kLarge = 1024 * 1024;  // bytes
  mallopt(M_MMAP_THRESHOLD, kLarge);
  mallopt(M_TRIM_THRESHOLD, 2 * kLarge);
#endif
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  giveLargePicturesBack();
  setApplicationName(QStringLiteral("veneerer"));
  // There is no display name: the toolkit would hang it behind the title of every window.
  setApplicationVersion(programVersion());
  // By its entry a desktop finds the icon of the windows.
  setDesktopFileName(QStringLiteral("org.veneerer.Veneerer"));
  // No window is open for a moment between the splash and the others.
  setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const RecordError& error) {
    fail(error.message(), error.report());
  } catch (const std::exception& error) {
    const QString message = QString::fromLocal8Bit(error.what());
    fail(message, shownText(message));
  }
  return true;
}

void Application::fail(const QString& message, const QString& report) {
  if (std::exchange(failed_, true)) return;
  QTextStream(stderr) << printable(message) << Qt::endl;
  QMessageBox box(QMessageBox::Critical, programTitle(), QString(), QMessageBox::Ok, activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setText(report);
  box.setInformativeText(UiTexts::tr("The program ends. Files that were written before stay as they are."));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  addCopyButton(box, report);
  box.exec();
  exit(kFailureStatus);
}

}  // namespace veneerer
