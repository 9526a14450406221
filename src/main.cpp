// Veneerer, the designer: the core, the windows and the real world put together.
#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include "designer/designer.h"
#include "elements/printable.h"
#include "platform/program.h"
#include "platform/programplace.h"
#include "ui/application.h"
#include "ui/designerwindows.h"
#include "ui/language.h"
#include "ui/qtbackground.h"
#include "ui/qtplatform.h"

using namespace veneerer;

namespace {

constexpr int kUsageStatus = 2;

struct MainTexts {
  Q_DECLARE_TR_FUNCTIONS(Main)
};

const QString kLanguage = QStringLiteral("language");

// Known ahead of all texts, those about the options included.
QString languageAsked(const QCoreApplication& application) {
  QCommandLineParser parser;
  parser.addOption({kLanguage, QString(), kLanguage});
  parser.parse(application.arguments());
  return parser.value(kLanguage);
}

void parse(QCommandLineParser& parser, const QCoreApplication& application) {
  parser.addOption({QStringLiteral("program-folder"),
                    MainTexts::tr("The folder that holds \"Skins\" and \"images\". Without it the one of the "
                                  "program itself, where there are Skins in it, else that of the user."),
                    MainTexts::tr("path")});
  parser.addOption({kLanguage,
                    MainTexts::tr("The language of the texts, \"en\" or \"de\". Without it the one that is "
                                  "chosen in the menu Help, else the desktop's."),
                    MainTexts::tr("code")});
  parser.addPositionalArgument(QStringLiteral("SKIN"),
                               MainTexts::tr("The folder of a Skin, which is opened without a question."),
                               QStringLiteral("[SKIN]"));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.process(application);
}

// An installed program has its data in ../share; so has one that was built and not installed.
ProgramPlaces placesOf(const QCommandLineParser& parser) {
  ProgramPlaces places;
  places.given = parser.value(QStringLiteral("program-folder"));
  places.skin = parser.positionalArguments().value(0);
  places.beside = QCoreApplication::applicationDirPath();
  QStringList data = QStandardPaths::standardLocations(QStandardPaths::AppDataLocation);
  places.user = data.takeFirst();
  places.shared = QStringList(places.beside + QStringLiteral("/../share/veneerer")) + data;
  return places;
}

/// Empty for a command line that can be followed.
QString usageFault(const QCommandLineParser& parser) {
  const QStringList skins = parser.positionalArguments();
  if (skins.size() > 1) return MainTexts::tr("one Skin at most can be opened");
  const QString language = parser.value(kLanguage);
  if (parser.isSet(kLanguage) && !isSpoken(language))
    return MainTexts::tr("there are no texts in the language %1").arg(excerpt(language));
  const bool isThere = skins.isEmpty() || QFileInfo(skins[0]).isDir();
  return isThere ? QString() : MainTexts::tr("there is no folder %1").arg(excerpt(skins[0], 1000));
}

}  // namespace

int main(int argc, char** argv) {
  Application application(argc, argv);
  const QString asked = languageAsked(application);
  speak(languageFor(asked.isEmpty() ? keptLanguage() : asked, QLocale::system().uiLanguages()));
  QCommandLineParser parser;
  parse(parser, application);
  if (const QString fault = usageFault(parser); !fault.isEmpty()) {
    QTextStream(stderr) << QStringLiteral("veneerer: ") << fault << Qt::endl;
    return kUsageStatus;
  }
  // The common dialogs keep their own notes, custom colours among them: those are to last for the run only.
  const QTemporaryDir notes;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, notes.path());

  const ProgramPlaces places = placesOf(parser);
  QtDialogs dialogs;
  IniSettings settings;
  Disk disk;
  QtProgress progress;
  QtBackground background;
  const FoundPlace found = findPlace(places, disk);
  if (!found.fault.isEmpty()) dialogs.inform(programTitle(), found.fault);
  Platform platform{dialogs, settings, disk, primaryScreen(), found.folder, &progress, &background};
  Designer designer(platform);
  dialogs.setSkin([&designer] { return designer.skinFolder(); });
  DesignerWindows windows(designer);
  const QString skin = places.skin.isEmpty() ? QString() : skinName(places.skin);
  QTimer::singleShot(0, [&] { designer.startUp(skin); });
  return Application::exec();
}
