// Every test program runs with a GUI application on Qt's offscreen platform: pictures and fonts work, no
// display is needed.
#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
