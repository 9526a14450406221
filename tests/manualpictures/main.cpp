// Makes the pictures of the manual, or the frames of the film that shows a minute's work, from the real
// windows, at work on Skins that come with the program.
//
//     manualpictures manual|film PROGRAM-FOLDER FOLDER
//
// PROGRAM-FOLDER holds a copy of "Skins" and "images", FOLDER gets the pictures. The screen should have 1366
// by 768 pixels.
#include <QTimer>

#include "manualpictures/film.h"
#include "manualpictures/manual.h"
#include "ui/application.h"

int main(int argc, char** argv) {
  veneerer::Application application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 4) qFatal("usage: manualpictures manual|film PROGRAM-FOLDER FOLDER");
  const auto make = arguments[1] == "film" ? veneerer::test::shootFilm : veneerer::test::photographManual;
  QTimer::singleShot(0, [&] {
    try {
      make(arguments[2], arguments[3]);
      QCoreApplication::exit(0);
    } catch (const std::exception& error) {
      qFatal("%s", error.what());
    }
  });
  return QApplication::exec();
}
