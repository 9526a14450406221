// Veneerer, the designer: the core, the windows and the real world put together.
#include <QCommandLineParser>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include "designer/designer.h"
#include "ui/application.h"
#include "ui/designerwindows.h"
#include "ui/qtbackground.h"
#include "ui/qtplatform.h"

using namespace veneerer;

namespace {

QString programFolder(const QCoreApplication& application) {
  const QCommandLineOption folder(
      QStringLiteral("program-folder"),
      QStringLiteral("The folder that holds \"Skins\" and \"images\"; that of the "
                     "program itself when not given."),
      QStringLiteral("path"), QCoreApplication::applicationDirPath());
  QCommandLineParser parser;
  parser.addOption(folder);
  parser.addHelpOption();
  parser.addVersionOption();
  parser.process(application);
  return parser.value(folder);
}

}  // namespace

int main(int argc, char** argv) {
  Application application(argc, argv);
  const ProgramFolder folder{programFolder(application)};
  // The common dialogs keep their own notes, custom colours among them: those are to last for the run only.
  const QTemporaryDir notes;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, notes.path());

  QtDialogs dialogs;
  IniSettings settings;
  Disk disk;
  QtProgress progress;
  QtBackground background;
  Platform platform{dialogs, settings, disk, primaryScreen(), folder, &progress, &background};
  Designer designer(platform);
  dialogs.setSkin([&designer] { return designer.skinFolder(); });
  DesignerWindows windows(designer);
  QTimer::singleShot(0, [&] { designer.startUp(); });
  return Application::exec();
}
