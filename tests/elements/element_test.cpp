#include "elements/element.h"

#include <gtest/gtest.h>

#include "forms/state.h"
#include "support/testwindow.h"

using namespace veneerer;
using test::Notices;
using test::TestWindow;

TEST(Element, OneNoticeWithTheOldValuePerChange) {
  TestWindow window;
  window.Label1->setTop(120);
  window.Label1->setTop(120);
  window.Label1->setTop(135);
  const Notices expected = {{"Form9.Label1", Property::Top, 0.0f}, {"Form9.Label1", Property::Top, 120.0f}};
  EXPECT_EQ(window.told, expected);
}

TEST(Element, AListenerMayAttachOthersAndChangeElements) {
  TestWindow window;
  QString heard;
  const QString word = "own captures are intact";
  std::vector<Attachment> others;
  const Attachment watching = window.watch([&window, &others, &heard, word](const Change& change) {
    if (change.property != Property::Left) return;
    for (int i = 0; i < 100; ++i) others.push_back(window.watch([](const Change&) {}));
    change.element.setTop(15);
    heard = word;
  });
  window.told.clear();
  window.Label1->setLeft(30);
  EXPECT_EQ(heard, word);
  EXPECT_EQ(window.told.size(), 2u);
}

TEST(Element, StackingOrderWithinTheContainer) {
  TestWindow window;
  PictureBox& box = *window.Picture1;
  Element& first = window.Button1[0];
  Element& second = window.Button1[1];
  Element& third = window.Button1[2];
  for (Element* e : {&first, &second, &third}) e->setContainer(box);
  window.told.clear();
  third.bringToFront();
  EXPECT_EQ(window.told, Notices()) << "it was in front already";
  first.bringToFront();
  third.sendToBack();
  EXPECT_EQ(box.children(), (std::vector<Element*>{&third, &second, &first}));
  EXPECT_EQ(window.told.size(), 2u);

  second.setContainer(window);
  EXPECT_EQ(box.children(), (std::vector<Element*>{&third, &first}));
  EXPECT_EQ(second.container(), &window);
}

TEST(Family, MembersByIndex) {
  TestWindow window;
  EXPECT_EQ(window.Label2.find(3)->key(), u"Form9.Label2(3)");
  EXPECT_EQ(window.Label2.find(1), nullptr) << "indices need not be dense";
  EXPECT_EQ(window.Label2.find(4), nullptr);
  EXPECT_EQ(window.Label2.find(-1), nullptr) << "an array has no member without an index";
  EXPECT_EQ(window.Label1.find(-1), window.Label1.find(0));
  EXPECT_EQ(window.Label1.find(1), nullptr);
}

TEST(State, OtherTextsAreNoKeys) {
  State state;
  EXPECT_EQ(state.find("Form4.Combo10(0)"), &*state.form4.Combo10);
  for (const char* key : {"", ".", "Form1.", "Form9", "form1", "Form1(0)", "Form1.Label16", "Form1.Label16()",
                          "Form1.Label16(", "Form1.Label16(-1)", "Form1.Label16(99999999999)",
                          "Form1.Label16(3)x", "Form1.Label16(3", "Form4.Combo10(1)", "Form1.NoSuch"})
    EXPECT_EQ(state.find(QString::fromLatin1(key)), nullptr) << key;
}
