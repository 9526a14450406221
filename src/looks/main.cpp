// skinart: draws and writes the Skins that come with the program. The same call writes the same bytes.
#include <QGuiApplication>
#include <cstdio>
#include <exception>

#include "looks/skinbuilder.h"

int main(int argc, char** argv) {
  using namespace veneerer::looks;
  if (argc != 2 || argv[1][0] == '-') {
    std::fputs("usage: skinart FOLDER\n", stderr);
    return 2;
  }
  // Nothing is shown, so no display is needed.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  try {
    const QString folder = QString::fromLocal8Bit(argv[1]);
    veneerer::Disk disk;
    for (const Look& look : {blackAndBlueLook(), copperLoungeLook(), daylightWideLook()})
      buildSkin(folder, look, disk);
    buildProgramImages(folder, blackAndBlueLook(), disk);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "skinart: %s\n", error.what());
    return 1;
  }
  return 0;
}
