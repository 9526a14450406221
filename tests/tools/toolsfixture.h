// The Tools window at work on a canvas where every element has a place and a look of its own.
#pragma once

#include <gtest/gtest.h>

#include "support/scriptedplatform.h"
#include "tools/toolspalette.h"

namespace veneerer {

class ToolsTest : public testing::Test {
protected:
  ToolsTest() {
    form6.Combo1->setRows(rows(9));
    form6.Combo2->setRows(rows(8));
    form6.Combo4->setRows(rows(5));
    form6.Combo5->setRows({"Left Align", "Right Align", "Center Align"});
    form6.List1->setRows({"Tahoma", "Courier", "Times"});
    spread();
  }

  static QStringList rows(int count) {
    QStringList rows;
    for (int i = 0; i < count; ++i) rows.append(QStringLiteral("Style  %1").arg(i));
    return rows;
  }

  /// No two neighbours share a place, a size, a colour or a font size.
  void spread() {
    static const Picture picture = Picture::drawn(QImage(2, 2, QImage::Format_RGB32));
    for (Window* window : {static_cast<Window*>(&form1), static_cast<Window*>(&form6)})
      for (const Family* family : window->families())
        for (Element* element : family->members()) {
          const float i = static_cast<float>(element->index() + 2);
          element->place(i * 100.5f, i * 60.5f, i * 10, i * 20);
          if (element->has(Property::FontSize)) element->set(Property::FontSize, i);
          if (element->has(Property::BackColor))
            element->set(Property::BackColor, Colour(500 + element->index()));
          if (element->kind() == Kind::Button) element->set(Property::Picture, picture);
        }
  }

  void current(int section, int index = 0) {
    state.globals.SectionNumber = section;
    state.globals.ElementIndex = index;
  }
  static void type(TextBox& field, const char* text) { field.setText(text); }
  void click(Element& element) { state.board.click(element); }
  /// One property of some members of a family.
  template <class T = float>
  static QList<T> valuesOf(const Family& family, Property property, std::initializer_list<int> members) {
    QList<T> values;
    for (int member : members) values.append(family.find(member)->as<T>(property));
    return values;
  }

  State state;
  Form1& form1 = state.form1;
  Form6& form6 = state.form6;
  test::ScriptedPlatform world;
  ToolsPalette palette{state, world.platform};
};

}  // namespace veneerer
