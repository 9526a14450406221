// The windows' tests run in the program's own application, on Qt's offscreen platform.
#include <gtest/gtest.h>

#include "ui/application.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  veneerer::Application application(argc, argv);
  return RUN_ALL_TESTS();
}
