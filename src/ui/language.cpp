#include "ui/language.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>
#include <algorithm>

#include "ui/texts.h"

namespace veneerer {

namespace {

const QString kKey = QStringLiteral("language");

// Texts in this language are in the sources.
const QString kEnglish = QStringLiteral("en");

QSettings settings() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("veneerer"));
}

void install(const QString& name, const QString& folder) {
  auto* translator = new QTranslator(qApp);
  if (translator->load(name, folder))
    QCoreApplication::installTranslator(translator);
  else
    delete translator;
}

void keep(const QString& code, Notes& notes) {
  QSettings kept = settings();
  kept.setValue(kKey, code);
  kept.sync();
  notes.say(kept.status() == QSettings::NoError
                ? UiTexts::tr("The language changes at the next start.")
                : UiTexts::tr("The language can't be kept: %1 can't be written.").arg(kept.fileName()));
}

}  // namespace

QList<Language> languages() {
  return {{kEnglish, QStringLiteral("English")}, {QStringLiteral("de"), QStringLiteral("Deutsch")}};
}

bool isSpoken(const QString& code) {
  return std::ranges::any_of(languages(), [&](const Language& each) { return each.code == code; });
}

QString languageFor(const QString& asked, const QStringList& ofDesktop) {
  if (isSpoken(asked)) return asked;
  for (const QString& wanted : ofDesktop)
    if (const QString code = wanted.section(u'-', 0, 0); isSpoken(code)) return code;
  return kEnglish;
}

void speak(const QString& code) {
  // Record files have a full stop in their numbers, and so do the fields that makers of Skins compare them
  // with.
  QLocale::setDefault(QLocale::c());
  if (code == kEnglish) return;
  install(QStringLiteral("qtbase_") + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  install(QStringLiteral("veneerer_") + code, QStringLiteral(":/translations"));
}

QString keptLanguage() {
  const QString code = settings().value(kKey).toString();
  return isSpoken(code) ? code : QString();
}

void addLanguageMenu(QMenu& menu, Notes& notes) {
  auto* choices = new QActionGroup(&menu);
  const auto add = [&](const QString& text, const QString& code) {
    QAction* action = choices->addAction(menu.addAction(text));
    action->setCheckable(true);
    action->setData(code);
    action->setStatusTip(UiTexts::tr("Speak this language from the next start on"));
    QObject::connect(action, &QAction::triggered, &menu, [code, &notes] { keep(code, notes); });
  };
  add(UiTexts::tr("&System's"), QString());
  for (const Language& each : languages()) add(u'&' + each.name, each.code);
  QObject::connect(&menu, &QMenu::aboutToShow, choices, [choices] {
    for (QAction* action : choices->actions()) action->setChecked(action->data() == keptLanguage());
  });
}

}  // namespace veneerer
