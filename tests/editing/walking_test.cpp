// The order in which the keys go over the canvas.
#include "editing/walking.h"

#include <gtest/gtest.h>

namespace veneerer {
namespace {

TEST(Walking, GoesOverWhatIsShownInTheOrderOfReadingAndRound) {
  State state;
  Form1& form = state.form1;
  form.setWidth(9000);
  form.setHeight(6000);
  for (const Family* family : form.families())
    for (Element* element : family->members()) element->setVisible(false);
  const auto put = [&](Element& element, float left, float top) -> Element* {
    element.setContainer(form);
    element.place(left, top, 300, 300);
    element.setVisible(true);
    return &element;
  };
  Element* last = put(form.Label16[0], 10, 900);
  Element* second = put(form.Label16[1], 700, 100);
  Element* first = put(form.lvButtons_H1[2], 100, 100);
  put(form.Label16[2], 20000, 100);
  EXPECT_EQ(neighbourOf(state, nullptr, 1), first);
  EXPECT_EQ(neighbourOf(state, first, 1), second);
  EXPECT_EQ(neighbourOf(state, second, 1), last);
  EXPECT_EQ(neighbourOf(state, last, 1), first) << "what lies off the canvas isn't in the row";
  EXPECT_EQ(neighbourOf(state, first, -1), last);
  EXPECT_EQ(neighbourOf(state, &form.Label16[2], -1), last);
  form.lvButtons_H1[2].setVisible(false);
  EXPECT_EQ(neighbourOf(state, last, 1), second);
}

}  // namespace
}  // namespace veneerer
