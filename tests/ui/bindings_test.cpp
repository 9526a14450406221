// Controls and elements, both ways.
#include <QStyleHints>
#include <QTextDocument>
#include <QToolTip>

#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Bindings : public test::UiFixture {
protected:
  /// The wheel over a control, as the screen tells its window; -1 is one step down.
  static void turnWheel(QWidget& over, int steps) {
    QWidget& window = *over.window();
    const QPointF at = over.mapTo(&window, QRectF(over.rect()).center());
    QWheelEvent turn(at, window.mapToGlobal(at), {}, {0, 120 * steps}, {}, {}, Qt::NoScrollPhase, false);
    // An event that the program sends itself isn't handed on to what lies below.
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(window.windowHandle(), &turn);
  }
  static void type(QLineEdit& field, const char* text) {
    field.selectAll();
    QTest::keyClicks(&field, QString::fromLatin1(text));
  }
};

TEST_F(Bindings, TypingInAFieldActsOnTheElementInHand) {
  designer->click(form1().Label4[1]);
  auto& height = widget<QLineEdit>("Form6.Text3(0)");
  EXPECT_EQ(height.text().toStdString(), form6().Text3[0].text().toStdString());
  type(height, "432");
  EXPECT_EQ(form1().Label4[1].height(), 432);
  type(widget<QLineEdit>("Form6.Text4"), "23.5");
  EXPECT_EQ(form1().Label4[1].fontSize(), 23.5f);
}

TEST_F(Bindings, AFieldFollowsItsElementAndKeepsTheCursor) {
  auto& field = widget<QLineEdit>("Form4.Text2");
  form4().Text2->setText("<b>one</b>.cov");
  EXPECT_EQ(field.text().toStdString(), "<b>one</b>.cov");
  field.setCursorPosition(3);
  QTest::keyClicks(&field, "xy");
  EXPECT_EQ(form4().Text2->text().toStdString(), "<b>xyone</b>.cov");
  EXPECT_EQ(field.cursorPosition(), 5);
}

TEST_F(Bindings, ChoosingAComboRowCountsEvenWhenItIsTheSame) {
  auto& combo = widget<QComboBox>("Form4.Combo10");
  int changes = 0;
  const Attachment watching =
      state().board.onChange(*form4().Combo10, Property::ListIndex, [&](Element&) { ++changes; });
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_End);
  EXPECT_EQ(form4().Combo10->listIndex(), 3);
  EXPECT_TRUE(form1().lvButtons_H57[3].isVisible()) << "the choice takes effect on the canvas";
  Q_EMIT combo.activated(3);
  EXPECT_EQ(changes, 2);
  form4().Combo10->select(0);
  EXPECT_EQ(combo.currentIndex(), 0);
}

TEST_F(Bindings, ACombosRowsAndTextFollow) {
  auto& covers = widget<QComboBox>("Form4.Combo4");
  QTest::mouseClick(&widget<QCheckBox>("Form4.Check1"), Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_EQ(covers.count(), 50);
  form4().Combo4->setText("12");
  EXPECT_EQ(covers.currentText().toStdString(), "12") << "a text that is no row";
  QTest::keyClicks(covers.lineEdit(), "3");
  EXPECT_EQ(form4().Combo4->text().toStdString(), "123");
  form4().Combo1->setText("many");
  EXPECT_EQ(widget<QComboBox>("Form4.Combo1").currentIndex(), -1);
}

TEST_F(Bindings, ListsAndTheirTipsShowAStrangersTextsAsTheyStand) {
  auto& combo = widget<QComboBox>("Form4.Combo10");
  combo.setFixedWidth(20);
  for (const char* text : {"R&B", "<b>bold</b>  R&B", "a &lt; b", "&lt;i&gt; <i>"}) {
    form4().Combo10->setText(text);
    QHelpEvent question(QEvent::ToolTip, QPoint(1, 1), combo.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&combo, &question);
    QTextDocument tip;
    if (Qt::mightBeRichText(QToolTip::text()))
      tip.setHtml(QToolTip::text());
    else
      tip.setPlainText(QToolTip::text());
    EXPECT_EQ(tip.toPlainText().first(qstrlen(text)).toStdString(), text) << "ahead of what the list is for";
  }
  form4().File1->setRows({"<b>R&B</b>\n\u202e.cov", QString(2000, u'x')});
  const QAbstractItemModel* rows = widget<QListView>("Form4.File1").model();
  EXPECT_EQ(rows->index(0, 0).data().toString().toStdString(), "<b>R&B</b>??.cov");
  EXPECT_EQ(rows->index(1, 0).data().toString().size(), 1000);
}

TEST_F(Bindings, TheWheelChoosesNothingEvenInTheBoxWithTheKeys) {
  form4().Combo3->setRows({"R", "S", "T"});
  form4().Combo3->setText("S");
  int choices = 0;
  const Attachment watching = state().board.watch([&](const Change& change) {
    choices += change.property == Property::ListIndex || change.property == Property::Text;
  });
  int boxes = 0;
  for (const char* window : {"Form4", "Form5", "Form6"})
    for (QComboBox* box : widget<QWidget>(window).findChildren<QComboBox*>()) {
      box->setFocus();
      turnWheel(*box, -1);
      turnWheel(*box, 1);
      ++boxes;
    }
  turnWheel(*widget<QListView>("Form6.List1").viewport(), -1);
  turnWheel(*widget<QListView>("Form4.File1").viewport(), -1);
  EXPECT_EQ(choices, 0);
  EXPECT_GE(boxes, 17);
}

TEST_F(Bindings, TheWheelOverABoxScrollsWhatItStandsIn) {
  auto& tools = widget<QWidget>("Form6");
  tools.resize(tools.width(), 300);
  auto* bar = tools.findChild<QScrollArea*>()->verticalScrollBar();
  ASSERT_GT(bar->maximum(), 0);
  turnWheel(widget<QComboBox>("Form6.Combo6"), -1);
  EXPECT_GT(bar->value(), 0);
}

TEST_F(Bindings, ABoxTogglesBetweenItsTwoStatesAndShowsTheThird) {
  auto& box = widget<QCheckBox>("Form4.Check9");
  const QPoint mark(8, box.height() / 2);
  QTest::mouseClick(&box, Qt::LeftButton, {}, mark);
  EXPECT_EQ(form4().Check9->value(), 1);
  form4().Check9->setValue(2);
  EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);
  QTest::mouseClick(&box, Qt::LeftButton, {}, mark);
  EXPECT_EQ(form4().Check9->value(), 1);
  QTest::mouseClick(&box, Qt::LeftButton, {}, mark);
  EXPECT_EQ(form4().Check9->value(), 0);
  EXPECT_EQ(box.checkState(), Qt::Unchecked);
}

TEST_F(Bindings, OptionsReleaseEachOtherWhoeverSelectsThem) {
  auto& fore = widget<QRadioButton>("Form6.Option1(0)");
  auto& back = widget<QRadioButton>("Form6.Option1(1)");
  QTest::mouseClick(&back, Qt::LeftButton, {}, QPoint(8, back.height() / 2));
  EXPECT_TRUE(form6().Option1[1].isSelected());
  EXPECT_FALSE(form6().Option1[0].isSelected());
  form6().Option1[0].select();
  EXPECT_TRUE(fore.isChecked());
  EXPECT_FALSE(back.isChecked());
}

TEST_F(Bindings, AListChoosesByAClickAndByTheKeys) {
  auto& fonts = widget<QListView>("Form6.List1");
  ASSERT_TRUE(QTest::qWaitFor([this] { return form6().List1->list().size() > 2; }, 60'000))
      << "the fonts of the screen";
  designer->click(form1().Label4[1]);
  const QModelIndex second = fonts.model()->index(1, 0);
  QTest::mouseClick(fonts.viewport(), Qt::LeftButton, {}, fonts.visualRect(second).center());
  EXPECT_EQ(form1().Label4[1].fontName(), form6().List1->list().at(1));
  QTest::keyClick(&fonts, Qt::Key_Down);
  EXPECT_EQ(form1().Label4[1].fontName(), form6().List1->list().at(2));
}

TEST_F(Bindings, ADoubleClickOnACoverFileSparesTheQuestion) {
  auto& files = widget<QListView>("Form4.File1");
  form4().File1->setRows({"a.cov", "b.cov"});
  const QPoint second = files.visualRect(files.model()->index(1, 0)).center();
  world.dialogs.messages.clear();
  QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, second);
  QTest::mouseDClick(files.viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(form4().Text2->text().toStdString(), "b.cov");
  QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 50);
  EXPECT_TRUE(world.dialogs.messages.isEmpty());
  QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, QPoint(second.x(), 3));
  QTest::keyClick(&files, Qt::Key_Down);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !world.dialogs.messages.isEmpty(); }, 60'000));
  EXPECT_EQ(world.dialogs.messages.first().title.toStdString(), "Load Cover File");
}

TEST_F(Bindings, CommandsAndSamplesAreClicks) {
  designer->click(form1().lvButtons_H1[2]);
  const float before = form1().lvButtons_H1[3].left();
  QTest::mouseClick(&widget<QPushButton>("Form6.Command6(0)"), Qt::LeftButton);
  EXPECT_EQ(form1().lvButtons_H1[3].left(), before + 1);
  QTest::mouseClick(&widget<QAbstractButton>("Form6.lvButtons_H5(1)"), Qt::LeftButton);
  EXPECT_EQ(state().globals.SectionNumber, 8);
  EXPECT_EQ(state().globals.ElementIndex, 1);
  world.dialogs.colours.enqueue(0x123456);
  QTest::mouseClick(&widget<QAbstractButton>("Form6.Picture1"), Qt::LeftButton);
  EXPECT_EQ(form6().Picture1->backColor(), 0x123456);
}

}  // namespace
}  // namespace veneerer
