// The real windows on a real designer, with the real widgets found by the keys of their elements.
#pragma once

#include <QApplication>
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
