// Another Skin comes in hand: by the dialog, and dropped on the window.
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include "designer/restoredstate.h"
#include "records/recorderror.h"
#include "ui/modal.h"
#include "ui/openskindialog.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Opening : public test::UiFixture {
protected:
  void SetUp() override {
    makeSkin("Amber");
    test::writeBytes(root.filePath("Skins/Amber/resolution.ini"), "a\r\nb\r\nc\r\n 640 \r\n 480 \r\n");
    makeSkin("Broken <b>");
    test::writeBytes(root.filePath("Skins/Broken <b>/menu.ini"), "INI Version\r\n 2 \r\nwide\r\n");
    UiFixture::SetUp();
  }
  /// Opens the dialog, does that in it, and closes it when that hasn't.
  void inDialog(const std::function<void(OpenSkinDialog&)>& act) {
    const test::OnModal<OpenSkinDialog> operation([&](OpenSkinDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.reject();
    });
    trigger("&Open Skin...");
    EXPECT_TRUE(operation.came());
  }
  static QListView& list(OpenSkinDialog& dialog) { return *dialog.findChild<QListView*>("skins"); }
  static QLineEdit& search(OpenSkinDialog& dialog) { return *dialog.findChild<QLineEdit*>("search"); }
  static QStringList listed(OpenSkinDialog& dialog) {
    QStringList names;
    const QAbstractItemModel& model = *list(dialog).model();
    for (int row = 0; row < model.rowCount(); ++row)
      names << model.index(row, 0).data().toString().section('\n', 0, 0);
    return names;
  }
  /// The tool tip of a Skin tells that, sooner or later.
  static bool tells(OpenSkinDialog& dialog, int row, const char* text) {
    return QTest::qWaitFor(
        [&] {
          const QModelIndex index = list(dialog).model()->index(row, 0);
          return index.data(Qt::ToolTipRole).toString().contains(QLatin1String(text));
        },
        20'000);
  }
  static void choose(OpenSkinDialog& dialog, int row) {
    list(dialog).setCurrentIndex(list(dialog).model()->index(row, 0));
  }
  static QPushButton& open(OpenSkinDialog& dialog) {
    return *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
  }
};

TEST_F(Opening, CancelChangesNothing) {
  const test::RestoredState before(state());
  const QStringList rows = form4().Combo3->list();
  inDialog([&](OpenSkinDialog& dialog) {
    EXPECT_EQ(listed(dialog), (QStringList{"Amber", "Broken <b>", "S"}));
    EXPECT_EQ(dialog.skin(), u"S") << "the one in hand is proposed";
    choose(dialog, 0);
    EXPECT_TRUE(tells(dialog, 0, "640 x 480"));
    EXPECT_TRUE(tells(dialog, 0, "no problems"));
    EXPECT_TRUE(form1().isVisible()) << "the canvas stays";
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");
  EXPECT_EQ(form4().Combo3->list(), rows);
  EXPECT_EQ(designer->history().stack().count(), 0);
  EXPECT_EQ(world.disk.operations, 0);
}

TEST_F(Opening, AChoiceIsAFullLoadAndOneStep) {
  inDialog([&](OpenSkinDialog& dialog) {
    QTest::keyClicks(&search(dialog), "amb");
    EXPECT_EQ(listed(dialog), QStringList{"Amber"});
    EXPECT_EQ(dialog.skin(), u"Amber");
    QTest::keyClick(&search(dialog), Qt::Key_Return);
  });
  EXPECT_EQ(form4().Combo3->text(), u"Amber");
  EXPECT_EQ(form4().Combo3->list(), (QStringList{"Amber", "Broken <b>", "S"}));
  EXPECT_EQ(form4().Text1[0].text(), u"640");
  EXPECT_EQ(designer->history().stack().count(), 1);
  designer->history().undo();
  EXPECT_EQ(form4().Combo3->text(), u"S");
  inDialog([&](OpenSkinDialog& dialog) {
    EXPECT_TRUE(tells(dialog, 0, "640 x 480"));
    QTest::keyClicks(&search(dialog), "none");
    EXPECT_FALSE(open(dialog).isEnabled());
    search(dialog).clear();
    QTest::keyClick(&search(dialog), Qt::Key_Up);
    EXPECT_EQ(dialog.skin(), u"Amber") << "the first one was proposed, and nothing is above it";
    QTest::qWait(1);
    const QPoint first = list(dialog).visualRect(list(dialog).model()->index(0, 0)).center();
    QTest::mouseClick(list(dialog).viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(list(dialog).viewport(), Qt::LeftButton, {}, first);
  });
  EXPECT_EQ(form4().Combo3->text(), u"Amber");
}

// It ends the program, as anywhere: told ahead, and only for who presses the button.
TEST_F(Opening, ABrokenSkinTellsWhyAndOnlyItsButtonOpensIt) {
  inDialog([&](OpenSkinDialog& dialog) {
    choose(dialog, 1);
    EXPECT_TRUE(tells(dialog, 1, "menu.ini:3: "));
    EXPECT_TRUE(tells(dialog, 1, "&lt;b&gt;")) << "no name is read as markup";
    const QModelIndex broken = list(dialog).model()->index(1, 0);
    EXPECT_TRUE(broken.data().toString().endsWith("can't be loaded"));
    const QString about = dialog.findChild<QLabel*>("about")->text();
    EXPECT_TRUE(about.contains("Can't be loaded: menu.ini:3: ") && about.contains("what isn't saved"));
    QTest::keyClick(&list(dialog), Qt::Key_Return);
    QTest::keyClick(&search(dialog), Qt::Key_Return);
    QTest::mouseDClick(list(dialog).viewport(), Qt::LeftButton, {}, list(dialog).visualRect(broken).center());
    EXPECT_TRUE(dialog.isVisible());
    choose(dialog, 0);
    EXPECT_FALSE(dialog.findChild<QLabel*>("about")->text().contains("saved in"));
  });
  EXPECT_EQ(form4().Combo3->text(), u"S");
  EXPECT_TRUE(world.dialogs.messages.size() == 1) << "the question of the start";
  const auto press = [](OpenSkinDialog& dialog) {
    choose(dialog, 1);
    open(dialog).click();
  };
  EXPECT_THROW(inDialog(press), RecordError);
}

TEST_F(Opening, ADroppedSkinOfTheFolderIsOpened) {
  EXPECT_TRUE(drop({root.filePath("Skins/Amber/")}));
  EXPECT_EQ(form4().Combo3->text(), u"Amber");
  EXPECT_EQ(designer->history().stack().count(), 1);
  QDir(root.path()).mkpath("elsewhere/S");
  EXPECT_TRUE(drop({root.filePath("elsewhere/S")}));
  EXPECT_EQ(form4().Combo3->text(), u"Amber");
  EXPECT_TRUE(state().notes.texts().last().startsWith("Only Skins of "));
  EXPECT_FALSE(drop({root.filePath("Skins/Amber/resolution.ini")}));
}

}  // namespace
}  // namespace veneerer
