// What holds for every control of every panel.
#include <QAbstractItemView>
#include <QAccessible>
#include <QDockWidget>
#include <QHeaderView>
#include <QScrollBar>

#include "canvas/sections.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Controls : public test::UiFixture {
protected:
  /// A scroll bar, a header, the list or the field of a combo box, the clear button of a field.
  static bool isPartOfAnother(const QWidget& widget) {
    const QWidget* holder = widget.parentWidget();
    return qobject_cast<const QScrollBar*>(&widget) || qobject_cast<const QHeaderView*>(&widget) ||
           qobject_cast<const QComboBox*>(holder) || qobject_cast<const QLineEdit*>(holder) ||
           qobject_cast<const QAbstractScrollArea*>(holder);
  }
  /// What the operator can use of a panel.
  static QList<QWidget*> controlsOf(const QDockWidget& panel) {
    QList<QWidget*> controls;
    const QList<QWidget*> all = panel.widget()->findChildren<QWidget*>() + QList{panel.widget()};
    for (QWidget* widget : all)
      if (widget->focusPolicy() != Qt::NoFocus && widget->window() == panel.window() &&
          !isPartOfAnother(*widget))
        controls.append(widget);
    return controls;
  }
  QList<QDockWidget*> panels() { return widget<QMainWindow>("Form1").findChildren<QDockWidget*>(); }
  /// Whether the tool tip comes to hold these words once the hand rests.
  static bool comesToTell(const QWidget& control, const QString& words) {
    return QTest::qWaitFor([&] { return control.toolTip().contains(words); }, 60'000);
  }
  static std::string nameOf(const QWidget& widget) {
    return (QString(widget.metaObject()->className()) + u' ' + widget.objectName()).toStdString();
  }
};

TEST_F(Controls, HaveToolTips) {
  ASSERT_EQ(panels().size(), 10);
  int found = 0;
  for (const QDockWidget* panel : panels())
    for (const QWidget* control : controlsOf(*panel)) {
      ++found;
      EXPECT_FALSE(control->toolTip().isEmpty())
          << panel->windowTitle().toStdString() << ": " << nameOf(*control);
      EXPECT_FALSE(control->toolTip().contains(u'%')) << nameOf(*control);
    }
  EXPECT_GT(found, 150);
}

TEST_F(Controls, ToolTipsOfTheToolsFollowWhatIsInHand) {
  const auto& caption = widget<QLineEdit>("Form6.Text1");
  const auto& size = widget<QLineEdit>("Form6.Text4");
  EXPECT_TRUE(comesToTell(caption, "click one")) << caption.toolTip().toStdString();
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(form1().lvButtons_H1[2]));
  EXPECT_TRUE(comesToTell(caption, "Caption of the button")) << caption.toolTip().toStdString();
  EXPECT_TRUE(comesToTell(size, "serves labels, but not " + form1().lvButtons_H1[2].caption()))
      << size.toolTip().toStdString() << ": a grey field says why";
  form1().lvButtons_H1[2].setCaption("Go");
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(form1().lvButtons_H1[2]));
  EXPECT_TRUE(comesToTell(size, "but not Go (2)")) << size.toolTip().toStdString();
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle(form1().Label4[0]));
  EXPECT_TRUE(comesToTell(size, "Font size of the label, in points")) << size.toolTip().toStdString();
}

TEST_F(Controls, AreNamedToAssistiveTools) {
  for (const QDockWidget* panel : panels())
    for (QWidget* control : controlsOf(*panel)) {
      QAccessibleInterface* access = QAccessible::queryAccessibleInterface(control);
      ASSERT_TRUE(access) << nameOf(*control);
      EXPECT_FALSE(access->text(QAccessible::Name).isEmpty()) << nameOf(*control);
      EXPECT_NE(access->role(), QAccessible::Client) << nameOf(*control);
      EXPECT_NE(access->role(), QAccessible::NoRole) << nameOf(*control);
    }
}

TEST_F(Controls, OnePaintedCanBePressedByAssistiveTools) {
  auto& sample = widget<QAbstractButton>("Form6.Label6(1)");
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&sample);
  EXPECT_EQ(access->text(QAccessible::Name).toStdString(), "Album Name");
  form6().Label6[1].setCaption("Other");
  EXPECT_EQ(access->text(QAccessible::Name).toStdString(), "Other");
  ASSERT_TRUE(access->actionInterface());
  access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(currentElement(state()), &form6().Label6[1]);
}

TEST_F(Controls, AreAllReachedByTheTabulatorFromTheTopDown) {
  auto& window = widget<QWidget>("Form1");
  window.activateWindow();
  for (QDockWidget* panel : panels()) {
    panel->show();
    panel->raise();
    QTest::qWait(1);
    QList<QWidget*> left = controlsOf(*panel);
    // Of options that shut each other out the chosen one is reached, and from it the others by the arrows.
    left.removeIf([](const QWidget* control) {
      const auto* option = qobject_cast<const QRadioButton*>(control);
      return (option && !option->isChecked()) || !control->isEnabled() || !control->isVisible() ||
             !(control->focusPolicy() & Qt::TabFocus);
    });
    ASSERT_FALSE(left.isEmpty()) << panel->windowTitle().toStdString();
    std::ranges::sort(left, {}, [](const QWidget* control) {
      const QPoint place = control->mapTo(control->window(), QPoint());
      return std::pair(place.y(), place.x());
    });
    QWidget* at = left.first();
    at->setFocus();
    QPoint before = at->mapTo(panel, QPoint());
    for (int steps = 0; steps < 300 && panel->isAncestorOf(at); ++steps) {
      left.removeOne(at);
      const QPoint place = at->mapTo(panel, QPoint());
      EXPECT_TRUE(place.y() > before.y() - 12 || place.x() > before.x()) << nameOf(*at) << " leads back";
      before = place;
      QTest::keyClick(at, Qt::Key_Tab);
      at = QApplication::focusWidget();
      ASSERT_TRUE(at);
    }
    for (const QWidget* control : left)
      ADD_FAILURE() << panel->windowTitle().toStdString() << ": nothing leads to " << nameOf(*control);
  }
}

}  // namespace
}  // namespace veneerer
