// The panel Compare, and what is taken from another Skin.
#include <QDialog>
#include <QListWidget>
#include <QRadioButton>
#include <QTreeView>

#include "canvas/description.h"
#include "designer/restoredstate.h"
#include "support/shippedskins.h"
#include "ui/comparisonmodel.h"
#include "ui/modal.h"
#include "ui/smallpicture.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

using Column = ComparisonModel::Column;

class Compare : public test::UiFixture {
protected:
  void SetUp() override {
    test::copyShippedSkin("Black_and_Blue_gif_V8.0(800x600)", root.path(), "S");
    test::copyShippedSkin("Copper_Lounge(1024x768)", root.path(), "T");
    UiFixture::SetUp();
    designer->save();
    QTest::keyClick(&widget<QWidget>("Form1"), Qt::Key_F10);
    QTest::qWait(1);
  }
  QWidget& panel() { return *widget<QDockWidget>("compare").widget(); }
  QComboBox& other() { return *panel().findChild<QComboBox*>(); }
  QTreeView& rows() { return *panel().findChild<QTreeView*>(); }
  void compareWith(const QString& skin) {
    other().setCurrentIndex(std::max(0, other().findData(skin)));
    panel().findChild<QPushButton*>()->click();
  }
  QModelIndex rowOf(Column column, const QString& text) {
    const QModelIndexList found =
        rows().model()->match(rows().model()->index(0, column), Qt::DisplayRole, text, 1, Qt::MatchExactly);
    return found.isEmpty() ? QModelIndex() : found.first();
  }
  QString told() {
    for (const QLabel* label : panel().findChildren<QLabel*>())
      if (label->text().contains("differ") || label->text().contains("save")) return label->text();
    return {};
  }
  void clickRow(const QModelIndex& index) {
    rows().scrollTo(index);
    QTest::mouseClick(rows().viewport(), Qt::LeftButton, {}, rows().visualRect(index).center());
  }
  bool showsPictures() {
    QList<SmallPicture*> shown;
    for (QLabel* label : panel().findChildren<QLabel*>())
      if (auto* picture = dynamic_cast<SmallPicture*>(label)) shown.append(picture);
    return shown.size() == 2 && shown[0]->isVisible() && !shown[0]->pixmap().isNull() &&
           !shown[1]->pixmap().isNull();
  }
};

TEST_F(Compare, ListsWhatASaveWouldChangeAndChangesNothing) {
  compareWith({});
  EXPECT_EQ(rows().model()->rowCount(), 0);
  EXPECT_EQ(told(), "A save would change nothing.");

  Button& button = form1().lvButtons_H1[2];
  designer->setProperty({&button}, Property::BackColor, Colour(0x0000FF));
  EXPECT_EQ(rows().model()->rowCount(), 0) << "only by the operator's word";
  const test::RestoredState before(state());
  const qsizetype notes = state().notes.texts().size();
  const int steps = designer->history().stack().count();
  compareWith({});
  const QModelIndex row = rowOf(Column::Property, "Back Colour");
  ASSERT_TRUE(row.isValid());
  EXPECT_EQ(row.siblingAtColumn(Column::Element).data().toString(), elementTitle(state(), button));
  EXPECT_EQ(row.siblingAtColumn(Column::File).data().toString(), "menu.ini");
  EXPECT_EQ(row.siblingAtColumn(Column::After).data().toString(), "255");
  EXPECT_EQ(row.siblingAtColumn(Column::After).data(Qt::DecorationRole).value<QColor>(), QColor(Qt::red));
  EXPECT_FALSE(row.siblingAtColumn(Column::File).data(Qt::DecorationRole).isValid());
  clickRow(row);
  EXPECT_EQ(designer->overlay().elements(), std::vector<Element*>{&button});
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");
  EXPECT_EQ(state().notes.texts().size(), notes);
  EXPECT_EQ(designer->history().stack().count(), steps);
}

TEST_F(Compare, ListsWhatAnotherSkinHasOtherwiseAndShowsThePictures) {
  const test::RestoredState before(state());
  compareWith("T");
  ASSERT_GT(rows().model()->rowCount(), 1000);
  EXPECT_TRUE(told().contains(" files.")) << told().toStdString();
  const QModelIndex row = rowOf(Column::File, "images/Menu.bmp");
  ASSERT_TRUE(row.isValid());
  clickRow(row);
  EXPECT_TRUE(QTest::qWaitFor([&] { return showsPictures(); }, 60'000));
  clickRow(rowOf(Column::Property, "Font Size"));
  EXPECT_FALSE(showsPictures());
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");

  designer->reload("T");
  EXPECT_EQ(rows().model()->rowCount(), 0) << "it was of another Skin";
  EXPECT_LT(other().findData("T"), 0);
}

TEST_F(Compare, GoesToTheScreenOfAnElement) {
  Label& label = form1().Label16[3];
  const int entry = entryHolding(state(), label);
  designer->setProperty({&label}, Property::Left, label.left() + 15);
  designer->choose(*form6().Combo6, entry == 0 ? 1 : 0);
  compareWith({});
  const QModelIndex row = rowOf(Column::Property, "Left");
  ASSERT_TRUE(row.isValid());
  clickRow(row);
  EXPECT_EQ(form6().Combo6->listIndex(), entry);
  EXPECT_EQ(designer->overlay().elements(), std::vector<Element*>{&label});
}

TEST_F(Compare, WhatCantBeReadIsTold) {
  QFile::remove(root.filePath("Skins/T/menu_v2.ini"));
  QDir().mkpath(root.filePath("Skins/T/menu_v2.ini"));
  compareWith("T");
  bool isTold = false;
  for (const QLabel* label : panel().findChildren<QLabel*>())
    isTold = isTold || label->text().startsWith("Nothing is compared. menu_v2.ini");
  EXPECT_TRUE(isTold);
  EXPECT_EQ(rows().model()->rowCount(), 0);
}

TEST_F(Compare, TheDialogTakesTheChosenPartOfTheChosenSkin) {
  designer->choose(*form6().Combo6, 4);
  const float left = form1().Label9[0].left();
  const int steps = designer->history().stack().count();
  const test::OnModal<QDialog> dialog([&](QDialog& box) {
    auto* skins = box.findChild<QListWidget*>();
    EXPECT_EQ(skins->count(), 1) << "not the one in hand";
    skins->setCurrentRow(0);
    for (auto* part : box.findChildren<QRadioButton*>())
      if (part->text().startsWith("&Colours")) part->click();
    for (auto* button : box.findChildren<QPushButton*>())
      if (button->text() == "&Take") {
        EXPECT_TRUE(button->isDefault() && button->isEnabled());
        button->click();
      }
  });
  trigger("&Take from Another Skin...");
  EXPECT_TRUE(dialog.came());
  EXPECT_EQ(designer->history().stack().count(), steps + 1);
  EXPECT_TRUE(state().notes.texts().last().contains("is taken from T"))
      << state().notes.texts().last().toStdString();
  EXPECT_EQ(form1().Label9[0].left(), left);
}

}  // namespace
}  // namespace veneerer
