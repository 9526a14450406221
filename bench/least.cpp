// The least that a program with texts does: the application on the offscreen platform, and one font measured.
// What the batch tool takes as a process is told beside it.
#include <QFontMetricsF>
#include <QGuiApplication>
#include <cstdio>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  std::printf("%g\n",
              QFontMetricsF(QFont(QStringLiteral("Arial"), 12)).horizontalAdvance(QStringLiteral("x")));
}
