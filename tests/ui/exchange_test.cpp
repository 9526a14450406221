// A whole Skin comes and goes by the menu.
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "designer/restoredstate.h"
#include "problems/leftbehind.h"
#include "support/pictures.h"
#include "ui/modal.h"
#include "ui/newskindialog.h"
#include "ui/uifixture.h"
#include "ui/workwindow.h"

namespace veneerer {
namespace {

class ExchangeMenu : public test::UiFixture {
protected:
  QString skin(const QString& name) const { return root.filePath("Skins/" + name); }
  QString lastNote() { return state().notes.texts().isEmpty() ? QString() : state().notes.texts().last(); }

  void copyAs(const QString& name) {
    const test::OnModal<QInputDialog> dialog([&](QInputDialog& box) {
      EXPECT_EQ(box.textValue(), "S copy");
      box.setTextValue(name);
      box.accept();
    });
    trigger("Copy as &New Skin...");
  }
  void chooseFile(const char* entry, const QString& path) {
    const test::OnModal<QFileDialog> dialog([&](QFileDialog& box) {
      auto* name = box.findChild<QLineEdit*>();
      name->setText(path);
      QTest::keyClick(name, Qt::Key_Return);
    });
    trigger(entry);
  }
};

TEST_F(ExchangeMenu, ACopyIsInHandAsItWasAndTheOldOneStays) {
  write("images/a.bmp", "picture");
  form1().Label39->setFontSize(31);
  // No change of Skin would show another one here.
  test::writePicture(path("images/star.bmp"), 4, 4, Qt::red);
  form1().aicAlphaImage1[3].setPicture(state().pictures.load(path("images/star.bmp")));
  copyAs("Mine");
  EXPECT_EQ(form1().aicAlphaImage1[3].picture().path(), skin("Mine/images/star.bmp"));
  EXPECT_EQ(form4().Combo3->text(), "Mine");
  EXPECT_TRUE(form4().Combo3->list().contains("Mine"));
  EXPECT_EQ(form1().Label39->fontSize(), 31);
  EXPECT_FALSE(designer->history().isModified());
  EXPECT_EQ(test::bytesOf(skin("Mine/images/a.bmp")), "picture");
  EXPECT_TRUE(QFileInfo::exists(skin("Mine/menu.ini")));
  EXPECT_FALSE(QFileInfo::exists(skin("S/menu.ini")));
  designer->setProperty({&*form1().Label39}, Property::FontSize, 30.f);
  EXPECT_TRUE(leftBehindFindings(state(), designer->skinFolder()).isEmpty()) << "it is no other Skin";
  designer->history().undo();
  EXPECT_TRUE(lastNote().startsWith("Mine is a new Skin"));

  designer->history().undo();
  EXPECT_EQ(form4().Combo3->text(), "S");
  EXPECT_EQ(form1().aicAlphaImage1[3].picture().path(), path("images/star.bmp"));
}

TEST_F(ExchangeMenu, ANewSkinIsOpenedWithNothingOfTheOldOne) {
  form1().aicAlphaImage1[3].setVisible(false);
  const auto answer = [this](QDialogButtonBox::StandardButton button) {
    const test::OnModal<NewSkinDialog> dialog([&](NewSkinDialog& box) {
      box.findChild<QLineEdit*>("name")->setText("Mine");
      box.findChild<QComboBox*>("look")->setCurrentText("Old Oak");
      box.findChild<QComboBox*>("size")->setCurrentText("640x480");
      QTest::mouseClick(box.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
    });
    trigger("New S&kin...");
  };
  answer(QDialogButtonBox::Cancel);
  EXPECT_FALSE(QFileInfo::exists(skin("Mine")));
  EXPECT_EQ(form4().Combo3->text(), "S");

  answer(QDialogButtonBox::Ok);
  EXPECT_EQ(form4().Combo3->text(), "Mine");
  EXPECT_TRUE(lastNote().startsWith("Mine is a new Skin, and in hand."));
  test::RestoredState made(state());
  designer->history().undo();
  EXPECT_EQ(form4().Combo3->text(), "S");
  designer->openSkin("Mine");
  EXPECT_EQ(made.difference(test::RestoredState(state())), "") << "what a choice of it in the list loads";
}

TEST_F(ExchangeMenu, ANameThatCannotBeIsToldAndNothingIsMade) {
  for (const char* name : {"S", "../T", ".hidden", ""}) {
    world.dialogs.messages.clear();
    copyAs(name);
    EXPECT_EQ(world.dialogs.messages.size(), 1) << name;
  }
  EXPECT_EQ(QDir(root.filePath("Skins")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{"S"});
  world.dialogs.messages.clear();
  world.disk.failAt(3);
  copyAs("Mine");
  ASSERT_EQ(world.dialogs.messages.size(), 1);
  EXPECT_TRUE(world.dialogs.messages.first().text.endsWith("made to fail"));
  EXPECT_EQ(form4().Combo3->text(), "S");
}

TEST_F(ExchangeMenu, AnExportedSkinIsImportedUnderItsNameOnce) {
  write("images/a.bmp", "picture");
  form1().Label39->setFontSize(31);
  const QString archive = root.filePath("S.zip");
  chooseFile("&Export...", archive.chopped(4));
  EXPECT_GT(QFileInfo(archive).size(), 0);
  chooseFile("&Import...", archive);
  ASSERT_EQ(world.dialogs.messages.size(), 2) << "the question of the start, and the refusal";
  EXPECT_TRUE(world.dialogs.messages.last().text.endsWith("there already"));

  QDir(root.path()).rename("Skins/S", "T");
  chooseFile("&Import...", archive);
  EXPECT_EQ(test::bytesOf(skin("S/images/a.bmp")), "picture");
  EXPECT_EQ(form4().Combo3->text(), "S");
  EXPECT_EQ(lastNote(), "S is among the Skins now.");
}

TEST_F(ExchangeMenu, ADroppedArchiveIsImportedAndNothingElseIsTaken) {
  const QString archive = root.filePath("S.ZIP");
  chooseFile("&Export...", archive);
  QDir(root.path()).rename("Skins/S", "Skins/T");
  EXPECT_FALSE(drop({root.filePath("Skins/T/images/a.bmp")}));
  EXPECT_FALSE(drop({archive, archive}));
  EXPECT_FALSE(drop({root.filePath("none.zip")}));
  EXPECT_FALSE(drop({}));
  EXPECT_TRUE(drop({archive}));
  EXPECT_EQ(lastNote(), "S is among the Skins now.");
  EXPECT_TRUE(QFileInfo(skin("S")).isDir());
}

TEST(WorkWindow, TellsPlainNamesAndThatItWasGivenUp) {
  WorkWindow window("Export Skin", nullptr);
  EXPECT_TRUE(window.tell(0, 10, "<b>a</b>.bmp"));
  EXPECT_EQ(window.findChild<QLabel*>()->textFormat(), Qt::PlainText);
  EXPECT_EQ(window.labelText(), "<b>a</b>.bmp");
  EXPECT_TRUE(window.tell(3, 10, "b"));
  EXPECT_EQ(window.value(), 3);
  window.cancel();
  EXPECT_FALSE(window.tell(4, 10, "c"));
}

TEST(WorkWindow, ComesUpAndStaysAliveInOneLongStep) {
  WorkWindow window("Export Skin", nullptr);
  bool isAlive = false;
  window.tell(0, 10, "large.bin");
  EXPECT_FALSE(window.isVisible());
  QTimer::singleShot(0, [&] { isAlive = true; });
  // Nothing else lets events run here.
  for (int i = 0; i < 1000 && !(window.isVisible() && isAlive); ++i) {
    EXPECT_TRUE(window.tell(0, 10, "large.bin"));
    QTest::qSleep(5);
  }
  EXPECT_TRUE(window.isVisible() && isAlive);
  window.findChild<QPushButton*>()->click();
  EXPECT_FALSE(window.tell(0, 10, "large.bin"));
}

}  // namespace
}  // namespace veneerer
