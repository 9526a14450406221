// The panels of our own: the inspector, the outline, and the line that tells the element in hand.
#include <QContextMenuEvent>
#include <QMenu>
#include <QTableView>
#include <QToolButton>
#include <QTreeView>

#include "editing/coloursinuse.h"
#include "ui/inspectormodel.h"
#include "ui/outlinemodel.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Panels : public test::UiFixture {
protected:
  void bringUp(int key) {
    QTest::keyClick(&widget<QWidget>("Form1"), static_cast<Qt::Key>(key));
    QTest::qWait(1);
  }
  template <class V>
  V& viewIn(const char* dock) {
    return *widget<QWidget>(dock).findChild<V*>();
  }
  /// The text of a property's row in the inspector.
  QModelIndex row(const char* title, int column = InspectorModel::Text) {
    QAbstractItemModel& model = *viewIn<QTableView>("inspector").model();
    for (int i = 0; i < model.rowCount(); ++i)
      if (model.index(i, 0).data() == QLatin1String(title)) return model.index(i, column);
    ADD_FAILURE() << "no row " << title;
    return {};
  }
};

TEST_F(Panels, FieldsThatDontReachWhatIsInHandAreGrey) {
  const auto isGrey = [&](const char* key) {
    const QWidget& field = widget<QWidget>(key);
    return field.palette().color(QPalette::Active, QPalette::Text) ==
           widget<QWidget>("Form6").palette().color(QPalette::Disabled, QPalette::Text);
  };
  EXPECT_TRUE(isGrey("Form6.Text1")) << "nothing is in hand";
  EXPECT_TRUE(isGrey("Form6.Text5(0)")) << "nor does a command that reads it do anything";
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(form1().lvButtons_H1[2]));
  EXPECT_FALSE(isGrey("Form6.Text1"));
  EXPECT_FALSE(isGrey("Form6.Text3(0)"));
  EXPECT_FALSE(isGrey("Form6.Text5(0)"));
  EXPECT_TRUE(isGrey("Form6.Text9(0)")) << "a place is for screens";
}

TEST_F(Panels, TheInspectorReadsAndSetsWhatIsInHand) {
  Button& button = form1().lvButtons_H1[2];
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(button));
  bringUp(Qt::Key_F7);
  QAbstractItemModel& model = *viewIn<QTableView>("inspector").model();
  EXPECT_EQ(row("Caption").data().toString(), button.caption());
  EXPECT_EQ(row("Height", InspectorModel::Pixels).data().toString(), QString::number(button.height() / 15));
  EXPECT_TRUE(model.setData(row("Height", InspectorModel::Pixels), QStringLiteral("50")));
  EXPECT_EQ(button.height(), 750);
  EXPECT_TRUE(model.setData(row("Fore Colour"), QStringLiteral("#FF0000")));
  EXPECT_EQ(button.foreColor(), Colour(0xFF));
  EXPECT_FALSE(model.setData(row("Fore Colour"), QStringLiteral("reddish")))
      << "what names no value is left alone";
  EXPECT_EQ(designer->history().stack().count(), 3) << "the click's placeholder and each value a step";
  designer->history().undo();
  EXPECT_NE(row("Fore Colour").data().toString(), QStringLiteral("#FF0000"));
}

// The toolkit's key asks the model for the row in hand, whether there is one or not.
TEST_F(Panels, CopyNothingWhereNoRowIsInHand) {
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(form1().lvButtons_H1[2]));
  bringUp(Qt::Key_F7);
  int models = 0;
  for (QWidget* each : QApplication::allWidgets()) {
    auto* view = qobject_cast<QAbstractItemView*>(each);
    if (!view || !view->model()) continue;
    view->setCurrentIndex({});
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(view->model()->data({}, Qt::DisplayRole).isValid()) << view->metaObject()->className();
    EXPECT_FALSE(view->model()->flags({}) & Qt::ItemIsEditable) << view->metaObject()->className();
    ++models;
  }
  EXPECT_GT(models, 3);
}

TEST_F(Panels, TheInspectorSetsWhatIsSelectedTogether) {
  designer->choose(*form6().Combo6, 11);
  Label& first = form1().Label16[3];
  Button& second = form1().lvButtons_H1[2];
  bringUp(Qt::Key_F7);
  designer->overlay().select({&first, &second});
  QAbstractItemModel& model = *viewIn<QTableView>("inspector").model();
  second.setWidth(first.width() + 15);
  EXPECT_TRUE(QTest::qWaitFor([&] { return row("Width").data() == QStringLiteral("(several)"); }, 60'000));
  model.setData(row("Width"), QStringLiteral("900"));
  EXPECT_EQ(first.width(), 900);
  EXPECT_EQ(second.width(), 900);
  EXPECT_EQ(state().globals.SectionNumber, 0) << "selecting is no click";
  EXPECT_EQ(row("Fore Colour", InspectorModel::Pixels).data(), QString()) << "a colour has none";
  PictureBox& picture = form1().Picture2[0];
  designer->overlay().select({&picture, &first, &second});
  model.setData(row("Font Size"), QStringLiteral("33"));
  model.setData(row("Fore Colour"), QStringLiteral("#FF0000"));
  for (const Element* each : std::initializer_list<Element*>{&first, &second}) {
    EXPECT_EQ(each->as<float>(Property::FontSize), 33) << "the first of all has none";
    EXPECT_EQ(each->as<Colour>(Property::ForeColor), Colour(0xFF));
  }
}

TEST_F(Panels, ACopiedStyleIsTheOneOfThen) {
  designer->choose(*form6().Combo6, 11);
  Label& from = form1().Label16[3];
  Label& to = form1().Label16[4];
  bringUp(Qt::Key_F7);
  const auto press = [&](const char* text) {
    for (QToolButton* button : widget<QWidget>("inspector").findChildren<QToolButton*>())
      if (button->text() == QLatin1String(text)) button->click();
  };
  from.set(Property::ForeColor, Colour(0x010203));
  designer->overlay().select({&from});
  press("Cop&y Style");
  from.set(Property::ForeColor, Colour(0x0A0B0C));
  designer->overlay().select({&to});
  press("&Paste Style");
  EXPECT_EQ(to.as<Colour>(Property::ForeColor), Colour(0x010203));
}

TEST_F(Panels, ColoursOfTheSkinAreReachedByKeys) {
  Button& button = form1().lvButtons_H1[2];
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(button));
  const auto askFor = [&](QWidget& control) {
    QContextMenuEvent ask(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&control, &ask);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  };
  const auto press = [](Qt::Key key) {
    QWidget* menu = QApplication::activePopupWidget();
    QTest::keyClick(menu->focusWidget() ? menu->focusWidget() : menu, key);
  };
  const auto colourAt = [&](std::size_t place) { return coloursInUse(state()).at(place).colour; };
  const Colour third = colourAt(2);
  QMenu* menu = askFor(widget<QWidget>("Form6.Picture2"));
  ASSERT_TRUE(menu);
  for (const Qt::Key each : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return}) press(each);
  EXPECT_FALSE(menu->isVisible());
  EXPECT_EQ(form6().Picture2->backColor(), third);
  EXPECT_EQ(button.foreColor(), third) << "as the click on it does with its dialog's colour";
  QTest::qWait(1);

  bringUp(Qt::Key_F7);
  auto& table = viewIn<QTableView>("inspector");
  const QModelIndex ground = row("Back Colour");
  table.setCurrentIndex(ground);
  const Colour second = colourAt(1);
  menu = askFor(table);
  ASSERT_TRUE(menu);
  const QRect shown = table.visualRect(ground);
  EXPECT_EQ(menu->y(), table.viewport()->mapToGlobal(shown.bottomLeft()).y()) << "below its row";
  for (const Qt::Key each : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Return}) press(each);
  EXPECT_EQ(button.backColor(), second);
}

TEST_F(Panels, TheOutlineFindsSelectsAndClicks) {
  bringUp(Qt::Key_F3);
  auto& tree = viewIn<QTreeView>("outline");
  auto& query = viewIn<QLineEdit>("outline");
  widget<QWidget>("Form1").activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([&] { return query.hasFocus(); }, 60'000)) << "one can type at once";
  QTest::keyClicks(&query, QStringLiteral("label16 3"));
  const auto& model = static_cast<const OutlineModel&>(*tree.model());
  const QModelIndex found = model.indexOf(form1().Label16[3]);
  ASSERT_TRUE(found.isValid());
  EXPECT_FALSE(model.indexOf(form1().Label16[4]).isValid());
  tree.setCurrentIndex(found);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(found).center());
  EXPECT_EQ(designer->overlay().elements(), std::vector<Element*>{&form1().Label16[3]});
  EXPECT_TRUE(form1().Label16[3].container()->isVisible()) << "its screen is shown";
  EXPECT_EQ(state().globals.SectionNumber, 0);
  // What changes with the screen is read anew when it rests.
  QTest::qWait(400);
  EXPECT_EQ(model.elementAt(tree.currentIndex()), &form1().Label16[3]);
  QTest::keyClick(&tree, Qt::Key_Return);
  EXPECT_EQ(state().globals.ElementIndex, 3);
  EXPECT_GT(state().globals.SectionNumber, 0) << "Enter is the element's click";
}

// Some themes leave the colour of such texts black.
TEST_F(Panels, TheOutlinesHintIsReadInADarkTheme) {
  QPalette dark(QColor(42, 46, 50));
  dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  widget<QWidget>("outline").setPalette(dark);
  const QPalette& shown = viewIn<QLineEdit>("outline").palette();
  EXPECT_GT(shown.color(QPalette::PlaceholderText).lightness(), 200);
}

TEST_F(Panels, TheLineTellsTheElementInHandAndGoesThere) {
  auto& line = widget<QWidget>("inHandLine");
  QPushButton* goThere = line.findChild<QPushButton*>();
  designer->choose(*form6().Combo6, 0);
  designer->click(form1().Label16[3]);
  const auto tells = [&](const char* text) {
    return line.findChild<QLabel*>()->accessibleName().contains(QLatin1String(text));
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return tells("Label16(3)"); }, 60'000));
  EXPECT_FALSE(goThere->isHidden());
  goThere->click();
  EXPECT_TRUE(form1().Label16[3].container()->isVisible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return goThere->isHidden(); }, 60'000));
}

}  // namespace
}  // namespace veneerer
