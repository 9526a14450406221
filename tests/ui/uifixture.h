// The real windows on a real designer, with the real widgets found by the keys of their elements.
#pragma once

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMainWindow>
#include <QMimeData>
#include <QUrl>
#include <QtTest>

#include "designer/skinfixture.h"
#include "painting/hittest.h"
#include "ui/designerwindows.h"

namespace veneerer::test {

class UiFixture : public SkinFixture {
protected:
  void SetUp() override {
    start();
    windows = std::make_unique<DesignerWindows>(*designer);
    for (Window* window : std::initializer_list<Window*>{&form4(), &form5(), &form6(), &form1()}) {
      window->setVisible(false);
      window->setVisible(true);
    }
    // The whole canvas is in sight, however small the screen is.
    widget<QWidget>("Form1").resize(1600, 900);
    // The lists of fonts and the first paints.
    QTest::qWait(1);
  }

  Form5& form5() { return state().form5; }

  /// The widget that shows the element of that key; the test ends without it.
  template <class W>
  W& widget(const char* key) {
    for (QWidget* candidate : QApplication::allWidgets())
      if (candidate->objectName() == QLatin1String(key))
        if (auto* found = qobject_cast<W*>(candidate)) return *found;
    ADD_FAILURE() << "no widget shows " << key;
    throw std::logic_error(key);
  }
  QWidget& canvas() { return widget<QWidget>("canvas"); }

  /// The entry of the main window's menus with that text, mnemonic included; the test ends without it.
  QAction& menuEntry(const char* text) {
    for (QAction* action : widget<QMainWindow>("Form1").findChildren<QAction*>())
      if (action->text() == QLatin1String(text)) return *action;
    ADD_FAILURE() << "no entry " << text;
    throw std::logic_error(text);
  }
  void trigger(const char* text) { menuEntry(text).trigger(); }

  /// Drops these files on the main window. Whether it takes them.
  bool drop(const QStringList& files) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files) urls << QUrl::fromLocalFile(file);
    data.setUrls(urls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget<QWidget>("Form1"), &enter);
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    event.ignore();
    if (enter.isAccepted()) QApplication::sendEvent(&widget<QWidget>("Form1"), &event);
    EXPECT_EQ(event.isAccepted(), enter.isAccepted());
    // What comes of it begins when whoever dropped it has been answered.
    QTest::qWait(1);
    return event.isAccepted();
  }

  /// A press, a move and a release on the canvas.
  void drag(QPoint from, QPoint by, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(&canvas(), button, {}, from);
    QTest::mouseMove(&canvas(), from + by);
    QTest::mouseRelease(&canvas(), button, {}, from + by);
  }

  /// The pixels of the canvas at the middle of an element.
  static QPoint middle(const Element& element) { return (windowRect(element).center() / 15).toPoint(); }

  std::unique_ptr<DesignerWindows> windows;
};

}  // namespace veneerer::test
