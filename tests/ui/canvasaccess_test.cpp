// The canvas as assistive tools see it.
#include <QAccessible>

#include "canvas/sections.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class CanvasAccess : public test::UiFixture {
protected:
  QAccessibleInterface& access() { return *QAccessible::queryAccessibleInterface(&canvas()); }
  /// The child of that name and role; the test ends without it.
  QAccessibleInterface& child(const QString& name, QAccessible::Role role) {
    for (int i = 0; i < access().childCount(); ++i)
      if (access().child(i)->text(QAccessible::Name) == name && access().child(i)->role() == role)
        return *access().child(i);
    throw std::logic_error(name.toStdString());
  }
};

TEST_F(CanvasAccess, ElementsAreChildrenByTheirKind) {
  int elements = 0;
  for (const Family* family : form1().families()) elements += static_cast<int>(family->members().size());
  EXPECT_EQ(access().childCount(), elements);
  form1().lvButtons_H1[2].setCaption("Press here");
  form1().Label4[0].setCaption("Read here");
  QAccessibleInterface& button = child("Press here (2)", QAccessible::Button);
  const QRectF place = windowRect(form1().lvButtons_H1[2]);
  const double zoom = double(canvas().width()) * 15 / form1().width();
  const QPoint centre = canvas().mapToGlobal((place.center() / 15 * zoom).toPoint());
  EXPECT_LE((button.rect().center() - centre).manhattanLength(), 2);
  EXPECT_EQ(button.parent(), &access());
  EXPECT_EQ(access().child(access().indexOfChild(&button)), &button);
  EXPECT_EQ(access().childAt(button.rect().center().x(), button.rect().center().y()), &button);
  EXPECT_TRUE(button.text(QAccessible::Description).contains("lvButtons_H1(2)"));
  child("Read here (0)", QAccessible::StaticText);
  child("Main Screen", QAccessible::Graphic);
}

TEST_F(CanvasAccess, APressIsAClickOnWhatIsSeen) {
  form1().lvButtons_H1[2].setCaption("Press here");
  QAccessibleInterface& button = child("Press here (2)", QAccessible::Button);
  EXPECT_FALSE(button.state().invisible);
  button.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(currentElement(state()), &form1().lvButtons_H1[2]);
  form1().lvButtons_H1[2].setVisible(false);
  EXPECT_TRUE(button.state().invisible);
  state().globals.SectionNumber = 0;
  button.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(state().globals.SectionNumber, 0);
}

TEST_F(CanvasAccess, TellsWhatTheKeysHaveLedTo) {
  canvas().window()->activateWindow();
  canvas().setFocus();
  ASSERT_TRUE(QTest::qWaitFor([&] { return canvas().hasFocus(); }, 60'000));
  QTest::keyClick(&canvas(), Qt::Key_Right, Qt::AltModifier);
  ASSERT_EQ(designer->overlay().elements().size(), 1);
  Element* first = designer->overlay().elements().front();
  QAccessibleInterface* focused = access().focusChild();
  ASSERT_TRUE(focused);
  EXPECT_TRUE(focused->state().focused && focused->state().selected);
  EXPECT_EQ(state().globals.SectionNumber, 0) << "selecting is no click";
  QTest::keyClick(&canvas(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_NE(designer->overlay().elements().front(), first);
  QTest::keyClick(&canvas(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(designer->overlay().elements().front(), first);
  QTest::keyClick(&canvas(), Qt::Key_Escape);
  designer->overlay().select({&form1().lvButtons_H1[2]});
  QTest::keyClick(&canvas(), Qt::Key_Return);
  EXPECT_EQ(currentElement(state()), &form1().lvButtons_H1[2]);
}

TEST_F(CanvasAccess, OutlivesItsCanvas) {
  const QAccessible::Id id = QAccessible::uniqueId(access().child(3));
  ASSERT_TRUE(QAccessible::accessibleInterface(id));
  windows.reset();
  EXPECT_FALSE(QAccessible::accessibleInterface(id));
}

}  // namespace
}  // namespace veneerer
