#include "ui/application.h"

#include <QMessageBox>
#include <QTextStream>

#include "elements/printable.h"
#include "platform/program.h"
#include "records/recorderror.h"

namespace veneerer {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("veneerer"));
  // There is no display name: the toolkit would hang it behind the title of every window.
  setApplicationVersion(programVersion());
  // No window is open for a moment between the splash and the others.
  setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const RecordError& error) {
    fail(error.message());
  } catch (const std::exception& error) {
    fail(QString::fromLocal8Bit(error.what()));
  }
  return true;
}

void Application::fail(const QString& message) {
  if (std::exchange(failed_, true)) return;
  QTextStream(stderr) << printable(message) << Qt::endl;
  QMessageBox box(QMessageBox::Critical, programTitle(), QString(), QMessageBox::Ok, activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setText(shownText(message));
  box.setInformativeText(
      QStringLiteral("The program ends. Files that were written before stay as they are."));
  box.exec();
  exit(kFailureStatus);
}

}  // namespace veneerer
