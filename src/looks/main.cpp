// skinart: draws and writes the Skins that come with the program. The same call writes the same bytes.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>
#include <exception>

#include "looks/looks.h"
#include "looks/skinbuilder.h"
#include "records/writefiles.h"

namespace {

using namespace veneerer;

void require(const QString& path, const QString& reason) {
  if (!reason.isEmpty()) throw std::runtime_error((path + QStringLiteral(": ") + reason).toStdString());
}

void makeAll(Disk& disk, const QString& folder) {
  for (const looks::Look* look : looks::allLooks())
    if (look->shipped)
      makeSkin(disk, folder + QStringLiteral("/Skins/") + QString::fromLatin1(look->shipped),
               defaultsOf(*look));
  const QString images = folder + QStringLiteral("/images");
  require(images, disk.makeFolder(images));
  writeFiles(disk, images, {{QStringLiteral("star 0.png"), looks::programStars()}});
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 || argv[1][0] == '-') {
    std::fputs("usage: skinart FOLDER\n", stderr);
    return 2;
  }
  // Nothing is shown, so no display is needed.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  try {
    Disk disk;
    makeAll(disk, QString::fromLocal8Bit(argv[1]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "skinart: %s\n", error.what());
    return 1;
  }
  return 0;
}
