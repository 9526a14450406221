// The windows' tests run in the program's own application, on Qt's offscreen platform, with settings of their
// own.
#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

#include "ui/application.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  veneerer::Application application(argc, argv);
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  return RUN_ALL_TESTS();
}
