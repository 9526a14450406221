// The windows as windows: closing and coming back, places, keys, failures.
#include <QActionGroup>
#include <QClipboard>
#include <QComboBox>
#include <QMenuBar>
#include <QMessageBox>

#include "records/recorderror.h"
#include "support/pictures.h"
#include "ui/application.h"
#include "ui/arrangement.h"
#include "ui/layouts.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Windows : public test::UiFixture {
protected:
  /// What the program's loop ends with when that happens in it; -1 when it goes on.
  template <class F>
  static int loopAround(F action) {
    QTimer::singleShot(0, qApp, action);
    QTimer goingOn;
    goingOn.callOnTimeout([] { QCoreApplication::exit(-1); });
    goingOn.start(2000);
    return QApplication::exec();
  }
};

TEST_F(Windows, AToolWindowClosesAndComesBack) {
  auto& tools = widget<QWidget>("Form6");
  EXPECT_TRUE(tools.isVisible());
  tools.close();
  EXPECT_FALSE(form6().isVisible());
  trigger("&Tools");
  EXPECT_TRUE(form6().isVisible());
  EXPECT_TRUE(tools.isVisible());
}

TEST_F(Windows, ClosingTheCanvasOrTheChooserEndsTheProgram) {
  EXPECT_EQ(loopAround([&] { widget<QWidget>("Form1").close(); }), 0);
  state().form3.setVisible(true);
  EXPECT_EQ(loopAround([&] { widget<QWidget>("Form3").close(); }), 0);
}

TEST_F(Windows, TitlesAreTheirCaptionsAndTheCanvasBeginsWithTheSkin) {
  const auto title = [this](const char* key) {
    return widget<QWidget>(key).windowTitle().remove(QStringLiteral("[*]")).toStdString();
  };
  EXPECT_EQ(title("Form2"), "Button Settings");
  EXPECT_EQ(title("Form4"), "File Controls/Settings");
  EXPECT_EQ(title("Form5"), "Texture Viewer");
  EXPECT_EQ(title("Form6"), "Tools");
  EXPECT_EQ(title("Form1"), "S — Veneerer");
  makeSkin("R&B\u202e");
  designer->reload("R&B\u202e");
  EXPECT_EQ(title("Form1"), "R&B? — Veneerer");
  form4().Combo3->setRows({"S", "T"});
  form4().Combo3->select(0);
  EXPECT_EQ(title("Form1"), "S — Veneerer");
  // On some desktops the toolkit hangs a display name behind every title.
  EXPECT_EQ(QGuiApplication::applicationDisplayName(), QCoreApplication::applicationName());
}

TEST_F(Windows, TheCanvasHasTheKeysAtTheEndOfTheStart) {
  windows.reset();
  Designer other(world.platform);
  DesignerWindows others(other);
  world.dialogs.answers.enqueue(true);
  ASSERT_TRUE(other.startUp());
  const auto nameOf = [](const QWidget* one) {
    return one ? one->objectName().toStdString() : std::string();
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return nameOf(QApplication::activeWindow()) == "Form1"; }, 60'000));
  EXPECT_EQ(nameOf(QApplication::focusWidget()), "canvas");
}

TEST_F(Windows, ScreensAreChosenFromTheMenuAndByKeys) {
  const QAction* history = &menuEntry("History Screen");
  trigger("History Screen");
  EXPECT_EQ(form6().Combo6->listIndex(), 1);
  EXPECT_TRUE(form1().Picture1[1].isVisible());
  EXPECT_TRUE(history->isChecked());
  EXPECT_TRUE(history->actionGroup() && history->actionGroup()->isExclusive()) << "a mark for one of many";
  trigger("&Previous Screen");
  trigger("&Previous Screen");
  EXPECT_EQ(form6().Combo6->listIndex(), 0) << "there is nothing ahead of the first";
  EXPECT_FALSE(history->isChecked());
}

TEST_F(Windows, TheTabulatorGoesInReadingOrder) {
  const auto next = [](const QWidget* from) {
    const QWidget* widget = from->nextInFocusChain();
    while (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible())
      widget = widget->nextInFocusChain();
    return widget->objectName().toStdString();
  };
  EXPECT_EQ(next(&widget<QWidget>("Form6.Text3(0)")), "Form6.Text3(1)");
  EXPECT_EQ(next(&widget<QWidget>("Form6.Text3(1)")), "Form6.Command5");
  EXPECT_EQ(next(&widget<QWidget>("Form6.Command5")), "Form6.Text9(0)");
  EXPECT_EQ(next(&widget<QWidget>("Form4.Combo3")), "Form4.Command4");
}

TEST_F(Windows, FitBesideTheCanvasOnASmallScreen) {
  const QSize room(1366 - 804, 768);
  for (const char* key : {"Form2", "Form4", "Form5", "Form6"}) {
    const QSize size = widget<QWidget>(key).sizeHint();
    EXPECT_LE(size.width(), room.width()) << key;
    EXPECT_LE(size.height() + 30, room.height()) << key;
    EXPECT_LE(widget<QWidget>(key).minimumSizeHint().height(), 300) << key << " scrolls on a smaller one";
  }
}

TEST_F(Windows, TheListsOfThePropertiesCutNoRowOff) {
  for (const QComboBox* box : widget<QWidget>("Form4").findChildren<QComboBox*>()) {
    QStyleOptionComboBox option;
    option.initFrom(box);
    const int room =
        box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box).width();
    for (int row = 0; row < box->count(); ++row)
      EXPECT_LE(box->fontMetrics().horizontalAdvance(box->itemText(row)), room)
          << box->objectName().toStdString() << ": " << box->itemText(row).toStdString();
  }
}

TEST_F(Windows, ThumbnailsFollowTheirPicturesAndBearBrokenOnes) {
  test::writePicture(path("images/green.png"), 400, 100, Qt::green);
  test::writeBytes(path("images/bad.png"), "no picture at all");
  auto& thumbnail = widget<QAbstractButton>("Form5.Image1(3)");
  const auto shown = [&] { return thumbnail.grab().toImage(); };
  const QPoint centre = thumbnail.rect().center();
  form5().Image1[3].setPicture(state().pictures.load(path("images/green.png")));
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown().pixelColor(centre) == QColor(Qt::green); }, 60'000));
  EXPECT_NE(shown().pixelColor(centre.x(), 4), QColor(Qt::green)) << "it keeps its proportions";
  form5().Image1[3].setPicture(state().pictures.load(path("images/bad.png")));
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown().pixelColor(centre) != QColor(Qt::green); }, 60'000));
}

TEST_F(Windows, ThumbnailsAreReadInADarkThemeAndTellFocusFromHover) {
  auto& thumbnail = widget<QAbstractButton>("Form5.Image1(3)");
  form5().Image1[3].setPicture(Picture());
  QPalette dark(QColor(42, 46, 50));
  dark.setColor(QPalette::Base, QColor(35, 38, 41));
  dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  thumbnail.setPalette(dark);
  const QImage plain = thumbnail.grab().toImage();
  const QImage inner = plain.copy(plain.rect().adjusted(5, 5, -5, -5));
  const auto isLight = [&](int x, int y) { return qGray(inner.pixel(x, y)) > 150; };
  EXPECT_GT(test::countPixels(inner.size(), isLight), 0) << "\"No picture\"";
  thumbnail.setAttribute(Qt::WA_UnderMouse);
  const QImage hovered = thumbnail.grab().toImage();
  thumbnail.setAttribute(Qt::WA_UnderMouse, false);
  thumbnail.window()->activateWindow();
  thumbnail.setFocus();
  ASSERT_TRUE(QTest::qWaitFor([&] { return thumbnail.hasFocus(); }, 60'000));
  const QImage focused = thumbnail.grab().toImage();
  EXPECT_TRUE(plain != hovered && plain != focused && hovered != focused);
}

TEST_F(Windows, ThumbnailsChooseTheirPictures) {
  test::writePicture(path("back.bmp"), 40, 30, Qt::blue);
  world.dialogs.files.enqueue(path("back.bmp"));
  QTest::mouseClick(&widget<QAbstractButton>("Form5.Image1(1)"), Qt::LeftButton);
  EXPECT_EQ(form1().Picture1[1].picture().path().toStdString(), path("back.bmp").toStdString());
}

TEST(Arrangement, GivesColumnsToAsManyPanelsAsThereIsRoomFor) {
  const QList<int> widths{550, 560, 550, 450};
  EXPECT_EQ(columnsOf(widths, 0), (QList<int>{0, 0, 0, 0})) << "the first has its place in any case";
  EXPECT_EQ(columnsOf(widths, 1109), (QList<int>{0, 0, 0, 0}));
  EXPECT_EQ(columnsOf(widths, 1110), (QList<int>{0, 1, 1, 1})) << "the last column takes the others";
  EXPECT_EQ(columnsOf({550, 560, 100}, 700), (QList<int>{0, 0, 0})) << "none comes ahead of its turn";
  EXPECT_EQ(columnsOf(widths, 3000), (QList<int>{0, 1, 2, 3}));
}

TEST_F(Windows, PanelsAreTornOffAndArrangedAgain) {
  auto& tools = widget<QDockWidget>("Form6");
  auto& history = widget<QDockWidget>("history");
  EXPECT_TRUE(history.isHidden()) << "it waits until it is asked for";
  trigger("&History");
  EXPECT_FALSE(history.isHidden());
  tools.setFloating(true);
  EXPECT_TRUE(tools.isWindow());
  widget<QDockWidget>("Form4").close();
  trigger("&Arrange");
  EXPECT_FALSE(tools.isWindow());
  EXPECT_FALSE(history.isHidden());
  EXPECT_TRUE(widget<QDockWidget>("Form4").isHidden()) << "what was closed stays closed";
}

TEST_F(Windows, TheMenuUndoesAndTellsWhat) {
  const QAction* undo = &menuEntry("&Undo");
  EXPECT_FALSE(undo->isEnabled());
  auto& canvasWindow = widget<QMainWindow>("Form1");
  auto& field = widget<QLineEdit>("Form4.Text1(0)");
  field.setFocus();
  const QString before = form4().Text1[0].text();
  QTest::keyClicks(&field, QStringLiteral("12"));
  EXPECT_EQ(undo->text(), QStringLiteral("&Undo Skin Resolution"));
  EXPECT_TRUE(canvasWindow.isWindowModified());
  field.window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&] { return field.hasFocus(); }, 60'000));
  QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form4().Text1[0].text(), before) << "the whole burst, not a letter";
  EXPECT_EQ(field.text(), before);
  EXPECT_FALSE(canvasWindow.isWindowModified());
  QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(field.text(), before + QStringLiteral("12"));
}

TEST(Mnemonics, AreDifferentAndLeaveAmpersandsAlone) {
  QWidget window;
  auto* column = new QVBoxLayout(&window);
  const QStringList texts{"Save", "Save All", "Time && Date", "&Apply", "s"};
  for (const QString& text : texts) column->addWidget(new QPushButton(text));
  assignMnemonics(window);
  QStringList result;
  for (const QPushButton* button : window.findChildren<QPushButton*>()) result += button->text();
  EXPECT_EQ(result.join(u'|').toStdString(), "&Save|Save A&ll|&Time && Date|&Apply|s");
}

// Last: a program that has failed once says nothing more.
TEST_F(Windows, AMalformedFileIsToldOnceAndEndsTheProgram) {
  QString told;
  QTimer answer;
  answer.callOnTimeout([&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    told = box->text();
    for (QAbstractButton* button : box->buttons())
      if (button->text() == u"&Copy") button->click();
    EXPECT_TRUE(box->isVisible()) << "to copy is no answer";
    box->accept();
  });
  answer.start(20);
  const int status = loopAround([] { throw RecordError("menu.ini", 12, {}, {}, "odd", {"/skins/S"}); });
  EXPECT_EQ(status, kFailureStatus);
  EXPECT_EQ(told.toStdString(), "menu.ini:12: odd\n\nFile: menu.ini\nLine: 12\nSkin: /skins/S");
  EXPECT_EQ(QApplication::clipboard()->text(), told);
}

}  // namespace
}  // namespace veneerer
