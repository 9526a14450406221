// The manual's window: where F1 leads, and how one gets about in it.
#include <QAbstractTextDocumentLayout>
#include <QDockWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextTable>
#include <QToolButton>

#include "ui/helptopics.h"
#include "ui/helpwindow.h"
#include "ui/modal.h"
#include "ui/newskindialog.h"
#include "ui/openskindialog.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Help : public test::UiFixture {
protected:
  static HelpWindow* shown() {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (auto* help = qobject_cast<HelpWindow*>(window); help && help->isVisible()) return help;
    return nullptr;
  }
  static std::string page() {
    return shown() ? shown()->findChild<HelpBrowser*>()->page().toStdString() : "no window";
  }
  static void pressHelp(QWidget& widget) {
    widget.window()->activateWindow();
    widget.setFocus();
    if (QTest::qWaitFor([&] { return widget.hasFocus(); }, 60'000)) QTest::keyClick(&widget, Qt::Key_F1);
  }
  HelpWindow& window() {
    trigger("&Contents");
    return *shown();
  }
  static QLineEdit& words(HelpWindow& window) { return *window.findChild<QLineEdit*>("words"); }
  static QTreeWidget& list(HelpWindow& window) { return *window.findChild<QTreeWidget*>("contents"); }
};

TEST_F(Help, EveryTopicHasItsPage) {
  const Manual manual;
  for (const HelpTopic& topic : helpTopics())
    EXPECT_FALSE(manual.text(QString::fromLatin1(topic.page)).isEmpty()) << topic.name << ": " << topic.page;
}

// A table that names what isn't there would lead to the index in silence.
TEST_F(Help, EveryTopicIsThere) {
  QSet<QString> names{"Form3",   "tryit",    "keySheet", "openSkin",
                      "newSkin", "recolour", "takeLook", "nameOfSkin"};
  for (const QWidget* widget : QApplication::allWidgets()) names.insert(widget->objectName());
  for (const HelpTopic& topic : helpTopics()) EXPECT_TRUE(names.contains(topic.name)) << topic.name;
}

TEST_F(Help, ALongTableIsLaidOutOnceAndLeftWhereItWas) {
  auto& browser = *window().findChild<HelpBrowser*>();
  const QSignalSpy laidOut(browser.document()->documentLayout(), &QAbstractTextDocumentLayout::update);
  const auto expectWell = [&](int scrolled) {
    browser.grab();
    EXPECT_EQ(browser.verticalScrollBar()->value(), scrolled);
    const auto tables = browser.document()->rootFrame()->childFrames();
    ASSERT_EQ(tables.size(), 3);
    for (QTextFrame* table : tables)
      EXPECT_TRUE(static_cast<QTextTable*>(table)->format().borderCollapse()) << "room and thin lines";
  };
  browser.showPage(QStringLiteral("reach"));
  EXPECT_GT(browser.document()->blockCount(), 500);
  expectWell(0);
  browser.verticalScrollBar()->setValue(900);
  browser.showPage(QStringLiteral("never"));
  browser.backward();
  expectWell(900);
  browser.backward();
  browser.forward();
  expectWell(900);
  EXPECT_LT(laidOut.size(), 100) << "not after each cell";
}

TEST_F(Help, TheKeyLeadsToThePageOfWhatHasTheFocus) {
  pressHelp(widget<QLineEdit>("Form6.Text7"));
  EXPECT_EQ(page(), "rescaling");
  pressHelp(widget<QLineEdit>("Form4.Text1(0)"));
  EXPECT_EQ(page(), "settings");
  pressHelp(widget<QLineEdit>("Form4.Text2"));
  EXPECT_EQ(page(), "covers") << "the innermost part counts";
  pressHelp(canvas());
  EXPECT_EQ(page(), "canvas");
  for (const QDockWidget* dock : widget<QMainWindow>("Form1").findChildren<QDockWidget*>())
    EXPECT_NE(helpPage(dock), kManualIndex) << dock->objectName().toStdString();
  EXPECT_EQ(helpPage(nullptr), kManualIndex);
}

TEST_F(Help, OneWindowServesAndHoldsNothingUp) {
  HelpWindow& help = window();
  EXPECT_FALSE(help.isModal());
  trigger("&Contents");
  EXPECT_EQ(widget<QMainWindow>("Form1").findChildren<HelpWindow*>().size(), 1);
  QTest::keyClick(&help, Qt::Key_Escape);
  EXPECT_FALSE(shown());
}

TEST_F(Help, InADialogItCanBeUsedAndOutlivesIt) {
  bool wasInFront = false;
  const test::OnModal<QDialog> operation([&](QDialog& dialog) {
    QTest::keyClick(dialog.findChild<QLineEdit*>("name"), Qt::Key_F1);
    wasInFront = shown() && shown()->parentWidget() == &dialog;
    EXPECT_EQ(page(), "new-skin");
    dialog.reject();
  });
  trigger("New S&kin...");
  EXPECT_TRUE(operation.came() && wasInFront) << "what stands behind a dialog takes no input";
  EXPECT_EQ(page(), "new-skin");
  EXPECT_EQ(shown()->parentWidget(), &widget<QWidget>("Form1"));
}

TEST_F(Help, LinksAndButtonsLeadOn) {
  HelpWindow& help = window();
  auto& browser = *help.findChild<HelpBrowser*>();
  browser.setSource(browser.source().resolved(QUrl("covers.md")));
  EXPECT_EQ(page(), "covers");
  ASSERT_TRUE(list(help).currentItem());
  EXPECT_EQ(list(help).currentItem()->text(0), "Covers");
  EXPECT_EQ(help.windowTitle(), "Manual: Covers");
  browser.setFocus();
  QTest::keyClick(&browser, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(page(), "index");
  for (QToolButton* button : help.findChildren<QToolButton*>())
    if (button->text() == "&Forward") button->click();
  EXPECT_EQ(page(), "covers");
}

TEST_F(Help, ASearchListsPagesAndMarksTheWords) {
  HelpWindow& help = window();
  const int all = list(help).topLevelItemCount();
  trigger("&Search...");
  EXPECT_TRUE(QTest::qWaitFor([&] { return words(help).hasFocus(); }, 60'000));
  QTest::keyClicks(&words(help), "PixelsToTwipsAndBack");
  EXPECT_EQ(list(help).topLevelItem(0)->text(0), "Nothing is found");
  words(help).clear();
  EXPECT_EQ(list(help).topLevelItemCount(), all);
  QTest::keyClicks(&words(help), "comma");
  QTest::keyClick(&words(help), Qt::Key_Return);
  EXPECT_EQ(page(), list(help).topLevelItem(0)->data(0, Qt::UserRole).toString().toStdString());
  auto& browser = *help.findChild<HelpBrowser*>();
  ASSERT_FALSE(browser.extraSelections().isEmpty());
  for (const auto& mark : browser.extraSelections()) EXPECT_EQ(mark.cursor.selectedText().toLower(), "comma");
}

// Some themes leave the colour of such texts black.
TEST_F(Help, HintsAndExcerptsAreReadInADarkTheme) {
  HelpWindow& help = window();
  QPalette dark(QColor(42, 46, 50));
  dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  help.setPalette(dark);
  EXPECT_GT(words(help).palette().color(QPalette::PlaceholderText).lightness(), 200);
  words(help).setText("cover");
  const QTreeWidgetItem* excerpt = list(help).topLevelItem(0)->child(0);
  EXPECT_GT(excerpt->foreground(0).color().lightness(), 200);
}

TEST_F(Help, PicturesAreNoWiderThanTheView) {
  HelpWindow& help = window();
  auto& browser = *help.findChild<HelpBrowser*>();
  for (const int width : {1100, 620}) {
    help.resize(width, 600);
    help.openPage("workbench");
    QTest::qWait(20);
    EXPECT_EQ(browser.horizontalScrollBar()->maximum(), 0) << width;
  }
  const QUrl url("qrc:/manual/images/workbench.png");
  help.resize(1100, 600);
  QTest::qWait(20);
  const int wide = browser.document()->resource(QTextDocument::ImageResource, url).value<QImage>().width();
  help.resize(700, 600);
  QTest::qWait(20);
  EXPECT_LT(browser.document()->resource(QTextDocument::ImageResource, url).value<QImage>().width(), wide);
}

}  // namespace
}  // namespace veneerer
