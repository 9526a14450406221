// skintool: the designer's own core without its windows.
#include <QGuiApplication>

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
  return veneerer::runBatch(QGuiApplication::arguments(), stdout, stderr);
}
