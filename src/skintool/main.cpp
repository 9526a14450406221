// skintool: the designer's own core without its windows.
#include <QGuiApplication>

#include "skintool/batch.h"

int main(int argc, char** argv) {
  // No display is needed: fonts and pictures come from the toolkit's offscreen platform.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  QGuiApplication::setApplicationName(QStringLiteral("skintool"));
  return veneerer::runBatch(QGuiApplication::arguments(), stdout, stderr);
}
