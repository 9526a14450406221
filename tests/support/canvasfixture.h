// A canvas of a hundred pixels a side on which nothing is shown but what a test puts there.
#pragma once

#include <gtest/gtest.h>

#include <QPainter>

#include "forms/form1.h"
#include "painting/canvaspainter.h"
#include "painting/hittest.h"

namespace veneerer::test {

class CanvasFixture : public testing::Test {
protected:
  CanvasFixture() {
    for (Family* family : form.families())
      for (Element* element : family->members()) element->setVisible(false);
  }

  /// In pixels of the container.
  static void put(Element& element, Element& container, const QRectF& place) {
    const auto twips = [](double pixels) { return static_cast<float>(pixels * 15); };
    element.setContainer(container);
    element.place(twips(place.x()), twips(place.y()), twips(place.width()), twips(place.height()));
    element.setVisible(true);
  }
  void put(Element& element, const QRectF& place) { put(element, form, place); }

  Switchboard board;
  Form1 form{board};
  CanvasPainter painter;
};

}  // namespace veneerer::test
