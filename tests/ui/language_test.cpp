// The language of the texts: which one is meant, what it leaves alone, and that the choice is kept.
#include "ui/language.h"

#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <algorithm>

#include "ui/uifixture.h"

namespace veneerer {
namespace {

void speakEnglishAgain() {
  qDeleteAll(qApp->findChildren<QTranslator*>());
  QLocale::setDefault(QLocale::system());
}

TEST(Languages, TheOneAskedForCountsElseTheFirstOfTheDesktop) {
  EXPECT_EQ(languageFor("de", {"en-GB"}), "de");
  EXPECT_EQ(languageFor("xx", {"de-AT"}), "de");
  EXPECT_EQ(languageFor("", {"de-Latn-DE", "de", "en"}), "de");
  EXPECT_EQ(languageFor("", {"fr-FR", "fr", "de-DE"}), "de");
  EXPECT_EQ(languageFor("", {"en-GB", "de-DE"}), "en");
  EXPECT_EQ(languageFor("", {"C"}), "en");
  EXPECT_EQ(languageFor("", {}), "en");
}

// On a desktop that writes a comma.
TEST(Languages, NumbersHaveAFullStop) {
  for (const char* code : {"en", "de"}) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    speak(QString::fromLatin1(code));
    QDoubleSpinBox box;
    box.setMaximum(10000);
    box.setValue(1234.5);
    EXPECT_EQ(box.text(), QStringLiteral("1234.50")) << code;
    EXPECT_EQ(QStringLiteral("%L1").arg(1234.5), QStringLiteral("1234.5")) << code;
    speakEnglishAgain();
  }
}

class InGerman : public test::UiFixture {
protected:
  void SetUp() override {
    speak(QStringLiteral("de"));
    UiFixture::SetUp();
  }
  void TearDown() override {
    UiFixture::TearDown();
    speakEnglishAgain();
  }
  QString titleOf(const char* frame) { return widget<QGroupBox>(frame).title(); }

  QTemporaryDir settings;
};

// The manual's pages are found by the names of frames.
TEST_F(InGerman, TheSystemsTextsAndAllNamesStay) {
  EXPECT_EQ(titleOf("Place and Size"), QStringLiteral("Ort und Größe"));
  EXPECT_EQ(titleOf("Colour Settings"), QStringLiteral("Colour Settings"));
  EXPECT_EQ(widget<QWidget>("Form6").windowTitle(), QStringLiteral("Tools"));
  EXPECT_EQ(widget<QAbstractButton>("Form6.Command10").text().remove(u'&'),
            QString(form6().Command10->caption()).remove(u'&'));
  EXPECT_EQ(menuEntry("History Screen").statusTip(), QStringLiteral("Diesen Bildschirm zeigen"));
}

TEST_F(InGerman, AStepIsNamedAndMergedAsInEnglish) {
  Element& label = form1().Label16[0];
  designer->nudge(label, 1, 1);
  designer->nudge(label, 1, 1);
  const QUndoStack& steps = designer->history().stack();
  EXPECT_EQ(steps.count(), 1);
  EXPECT_TRUE(steps.undoText().startsWith(QStringLiteral("Ort: "))) << steps.undoText().toStdString();
  const QString undo = QStringLiteral("&Rückgängig: ") + steps.undoText();
  const QList<QAction*> entries = widget<QMainWindow>("Form1").findChildren<QAction*>();
  EXPECT_TRUE(std::ranges::any_of(entries, [&](const QAction* each) { return each->text() == undo; }));
}

TEST_F(InGerman, TheChoiceIsKeptForTheNextStart) {
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  EXPECT_EQ(keptLanguage(), QString());
  trigger("&English");
  EXPECT_EQ(keptLanguage(), QStringLiteral("en"));
  EXPECT_EQ(state().notes.texts().last(), QStringLiteral("Die Sprache wechselt beim nächsten Start."));
  trigger("Wie das &System");
  EXPECT_EQ(keptLanguage(), QString());
}

}  // namespace
}  // namespace veneerer
