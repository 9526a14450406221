// Keys: the sheet that lists them, and the letters of menus and panels.
#include <QActionGroup>
#include <QDialog>
#include <QLocale>
#include <QMainWindow>
#include <QMenuBar>
#include <QTranslator>
#include <QTreeWidget>

#include "ui/language.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Keys : public test::UiFixture {
protected:
  QMainWindow& window() { return widget<QMainWindow>("Form1"); }
  static QChar letterOf(QString text) {
    const qsizetype at = text.remove(QStringLiteral("&&")).indexOf(u'&');
    return at < 0 ? QChar() : text[at + 1].toUpper();
  }
  /// Whether an entry is one of many of which one counts, such as a screen or a step of the grid.
  static bool isChoice(const QAction& action) { return action.actionGroup() != nullptr; }

  static void expectLetters(const QString& menu, const QList<QAction*>& entries) {
    QSet<QChar> taken;
    for (const QAction* entry : entries) {
      if (entry->isSeparator()) continue;
      const QChar letter = letterOf(entry->text());
      EXPECT_TRUE(!letter.isNull() || !entry->shortcut().isEmpty() || isChoice(*entry))
          << menu.toStdString() << ": no key leads to " << entry->text().toStdString();
      EXPECT_FALSE(!letter.isNull() && taken.contains(letter))
          << menu.toStdString() << ": the letter of " << entry->text().toStdString() << " is taken";
      taken.insert(letter);
      if (entry->menu()) expectLetters(entry->text(), entry->menu()->actions());
    }
  }
  void expectLettersOfMenus() {
    expectLetters(QStringLiteral("The menu bar"), window().menuBar()->actions());
  }
  void expectLettersOfPanels();
};

class GermanKeys : public Keys {
protected:
  void SetUp() override {
    speak(QStringLiteral("de"));
    Keys::SetUp();
  }
  void TearDown() override {
    Keys::TearDown();
    qDeleteAll(qApp->findChildren<QTranslator*>());
    QLocale::setDefault(QLocale::system());
  }
};

void Keys::expectLettersOfPanels() {
  QSet<QChar> menus;
  for (const QAction* menu : window().menuBar()->actions()) menus.insert(letterOf(menu->text()));
  for (const QDockWidget* panel : window().findChildren<QDockWidget*>()) {
    QSet<QChar> taken = menus;
    QStringList texts;
    for (const QLabel* label : panel->widget()->findChildren<QLabel*>())
      if (label->buddy()) texts.append(label->text());
    for (const QAbstractButton* button : panel->widget()->findChildren<QAbstractButton*>())
      texts.append(button->text());
    for (const QString& text : texts) {
      const QChar letter = letterOf(text);
      EXPECT_FALSE(!letter.isNull() && taken.contains(letter))
          << panel->windowTitle().toStdString() << ": " << text.toStdString();
      if (!letter.isNull()) taken.insert(letter);
    }
  }
}

TEST_F(Keys, EveryShortcutStandsInTheSheet) {
  QTest::keyClick(&window(), Qt::Key_F1, Qt::ShiftModifier);
  auto* sheet = window().findChild<QDialog*>("keySheet");
  ASSERT_TRUE(sheet);
  EXPECT_TRUE(sheet->isVisible() && !sheet->isModal());
  EXPECT_LE(sheet->height(), 768 - 40);
  auto* list = sheet->findChild<QTreeWidget*>();
  QMultiMap<QString, QString> told;
  for (QTreeWidgetItemIterator it(list); *it; ++it) told.insert((*it)->text(0), (*it)->text(1));
  int found = 0;
  for (const QAction* action : window().findChildren<QAction*>())
    for (const QKeySequence& keys : action->shortcuts()) {
      ++found;
      const QStringList shown = told.values(action->text().remove(u'&')).join(u' ').split(u' ');
      EXPECT_TRUE(shown.contains(keys.toString(QKeySequence::NativeText))) << action->text().toStdString();
    }
  EXPECT_GT(found, 20);
  QTest::keyClick(&window(), Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(window().findChildren<QDialog*>("keySheet").size(), 1);
  EXPECT_FALSE(told.value(QStringLiteral("Zoom at the pointer")).isEmpty());
}

TEST_F(Keys, NoKeysStandForTwoCommands) {
  QMap<QKeySequence, QString> taken;
  for (const QAction* action : window().findChildren<QAction*>())
    for (const QKeySequence& keys : action->shortcuts()) {
      EXPECT_FALSE(taken.contains(keys))
          << taken[keys].toStdString() << " and " << action->text().toStdString();
      taken.insert(keys, action->text());
    }
}

TEST_F(Keys, MenusHaveALetterForEachCommand) {
  expectLettersOfMenus();
}

TEST_F(GermanKeys, MenusHaveALetterForEachCommand) {
  EXPECT_EQ(letterOf(window().menuBar()->actions().first()->text()), u'D');
  expectLettersOfMenus();
}

TEST_F(Keys, PanelsHaveNoLetterTwiceNorOneOfTheMenus) {
  expectLettersOfPanels();
}

TEST_F(GermanKeys, PanelsHaveNoLetterTwiceNorOneOfTheMenus) {
  expectLettersOfPanels();
}

TEST_F(Keys, AKeyLeadsBackToTheCanvas) {
  window().activateWindow();
  auto& field = widget<QLineEdit>("Form6.Text1");
  field.setFocus();
  ASSERT_TRUE(QTest::qWaitFor([&] { return field.hasFocus(); }, 60'000));
  QTest::keyClick(&field, Qt::Key_E, Qt::ControlModifier);
  EXPECT_TRUE(canvas().hasFocus());
}

}  // namespace
}  // namespace veneerer
