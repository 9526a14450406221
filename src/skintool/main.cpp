// skintool: the designer's own core without its windows.
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

#include "skintool/batch.h"

namespace {

// Standard error carries the tool's own words alone; the toolkit's remarks about the machine would spoil
// them.
void dropToolkitRemarks(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace

int main(int argc, char** argv) {
  // No display is needed: fonts and pictures come from the toolkit's offscreen platform.
  qInstallMessageHandler(dropToolkitRemarks);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  QGuiApplication::setApplicationName(QStringLiteral("skintool"));
  const int status = veneerer::runBatch(QGuiApplication::arguments(), stdout, stderr,
                                        QGuiApplication::applicationFilePath());
  // The system takes back all that is left: the toolkit's way out may read the settings of all fonts, only to
  // forget them.
  std::fflush(nullptr);
  std::_Exit(status);
}
