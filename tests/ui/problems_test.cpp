// What is wrong is told where it is typed, and mended where it is listed.
#include <QDockWidget>
#include <QTreeWidget>

#include "canvas/description.h"
#include "ui/fieldnote.h"
#include "ui/remedybuttons.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Problems : public test::UiFixture {
protected:
  QWidget& panel() { return *widget<QDockWidget>("problems").widget(); }
  QTreeWidget& rows() { return *panel().findChild<QTreeWidget*>(); }
  /// The row that tells of that text, null as long as none does.
  QTreeWidgetItem* row(const char* text) {
    return rows().findItems(QLatin1String(text), Qt::MatchContains).value(0);
  }
  bool comes(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, 60'000); }
  void clickRow(QTreeWidgetItem* item) {
    rows().scrollToItem(item);
    QTest::mouseClick(rows().viewport(), Qt::LeftButton, {}, rows().visualItemRect(item).center());
  }
  RemedyButtons& remedies() {
    for (QWidget* part : panel().findChildren<QWidget*>())
      if (auto* found = dynamic_cast<RemedyButtons*>(part)) return *found;
    throw std::logic_error("no remedies");
  }
  /// The note that is in sight, empty for none.
  QString note() {
    for (const QLabel* label : widget<QMainWindow>("Form1").findChildren<QLabel*>())
      if (dynamic_cast<const FieldNote*>(label) && label->isVisible()) return label->text();
    return {};
  }
};

TEST_F(Problems, ARowGoesToItsElementAndItsButtonMendsItInOneStep) {
  Button& button = form1().lvButtons_H38[0];
  const int entry = entryHolding(state(), button);
  ASSERT_GT(entry, 0);
  designer->setProperty({&button}, Property::Caption, QStringLiteral("Now, then"));
  QTest::keyClick(&widget<QWidget>("Form1"), Qt::Key_F9);
  ASSERT_TRUE(comes([&] { return row("Now, then"); }));
  EXPECT_FALSE(remedies().isVisible());
  const int steps = designer->history().stack().count();
  clickRow(row("Now, then"));
  EXPECT_EQ(form6().Combo6->listIndex(), entry);
  EXPECT_EQ(designer->overlay().elements(), std::vector<Element*>{&button});
  EXPECT_EQ(button.caption(), u"Now, then") << "nothing before the operator's word";
  EXPECT_EQ(designer->history().stack().count(), steps);

  ASSERT_TRUE(remedies().isVisible());
  auto* word = remedies().findChild<QPushButton*>();
  EXPECT_TRUE(word->accessibleName().contains("Now")) << "it says what it does";
  word->click();
  EXPECT_FALSE(button.caption().contains(','));
  EXPECT_EQ(designer->history().stack().count(), steps + 1);
  EXPECT_TRUE(comes([&] { return !row("Now, then"); }));
  EXPECT_FALSE(remedies().isVisible()) << "no row, no remedy";
  designer->history().undo();
  EXPECT_EQ(button.caption(), u"Now, then");
  EXPECT_TRUE(comes([&] { return row("Now, then"); }));
}

TEST_F(Problems, AFieldTellsAtOnceWhatWouldNotComeBack) {
  designer->click(form1().lvButtons_H1[2]);
  auto& field = widget<QLineEdit>("Form6.Text1");
  field.window()->activateWindow();
  field.setFocus();
  ASSERT_TRUE(QTest::qWaitFor([&] { return field.hasFocus(); }, 60'000));
  field.selectAll();
  QTest::keyClicks(&field, "Stop");
  EXPECT_EQ(note(), "");
  QTest::keyClicks(&field, ", go");
  EXPECT_TRUE(note().contains("a comma ends the text")) << note().toStdString();
  EXPECT_EQ(field.accessibleDescription(), note());
  EXPECT_EQ(form1().lvButtons_H1[2].caption(), u"Stop, go") << "it is told, not refused";
  EXPECT_TRUE(field.hasFocus());
  for (int i = 0; i < 4; ++i) QTest::keyClick(&field, Qt::Key_Backspace);
  EXPECT_EQ(note(), "");
  QTest::keyClicks(&field, ",");
  EXPECT_NE(note(), "");
  widget<QLineEdit>("Form6.Text5(0)").setFocus();
  EXPECT_EQ(note(), "") << "it goes with the field";
}

}  // namespace
}  // namespace veneerer
