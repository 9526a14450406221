#include "elements/switchboard.h"

#include <gtest/gtest.h>

#include "support/testwindow.h"

namespace veneerer {
namespace {

using test::TestWindow;

class Board : public testing::Test {
protected:
  Switchboard::Handler says(const char* word) {
    return [this, word](Element&) { heard.append(QLatin1String(word)); };
  }
  Switchboard::View shows(const char* word) {
    return [this, word](const Change&) { heard.append(QLatin1String(word)); };
  }
  std::string told() {
    const QString all = heard.join(u' ');
    heard.clear();
    return all.toStdString();
  }

  TestWindow window;
  QStringList heard;
};

TEST_F(Board, HandlersComeBeforeViewsAndEachInTheOrderOfAttaching) {
  Label& label = window.Label2[3];
  const Attachment all[] = {window.watch(shows("view")),
                            window.watch(label, shows("own-view")),
                            window.onChange(window.Label2, Property::Caption, says("family")),
                            window.onChange(label, Property::Caption, says("element")),
                            window.onChange(window.Label2, Property::Caption, says("family-again")),
                            window.onChange(label, Property::Left, says("other-property"))};
  label.setCaption("a");
  EXPECT_EQ(told(), "family element family-again view own-view");
  window.Label2[0].setCaption("b");
  EXPECT_EQ(told(), "family family-again view");
  const ViewsOnly quiet(window);
  label.setCaption("c");
  EXPECT_EQ(told(), "view own-view");
}

TEST_F(Board, WhatAHandlerChangesIsToldAtOnce) {
  const Attachment all[] = {window.onChange(*window.Label1, Property::Left, [](Element& e) { e.setTop(1); }),
                            window.onChange(*window.Label1, Property::Top, says("top")),
                            window.onChange(*window.Label1, Property::Left, says("left"))};
  window.Label1->setLeft(1);
  EXPECT_EQ(told(), "top left");
}

TEST_F(Board, AClickReachesElementFamilyAndWindowInTheOrderOfAttaching) {
  const Attachment all[] = {window.onClickWithin(window, says("window")),
                            window.onClick(window.Button1, says("family")),
                            window.onClick(window.Button1[1], says("element")),
                            window.onDoubleClick(window.Button1[1], says("twice"))};
  window.click(window.Button1[1]);
  EXPECT_EQ(told(), "window family element");
  window.click(window.Button1[2]);
  EXPECT_EQ(told(), "window family");
  window.click(window);
  EXPECT_EQ(told(), "window");
  window.doubleClick(window.Button1[1]);
  EXPECT_EQ(told(), "twice");
}

TEST_F(Board, AListenerEndsWithItsAttachmentEvenInTheMiddleOfANotice) {
  Attachment second;
  Attachment first = window.onChange(*window.Label1, Property::Left, [&](Element&) {
    heard.append("first");
    first.reset();
    second.reset();
  });
  second = window.onChange(*window.Label1, Property::Left, says("second"));
  window.Label1->setLeft(1);
  window.Label1->setLeft(2);
  EXPECT_EQ(told(), "first");
}

TEST_F(Board, TheRecorderHearsOfAllThatIsStored) {
  window.Combo1->setRows({"a", "b"});
  Element& box = *window.Picture1;
  for (Element* button : window.Button1.members()) button->setContainer(box);
  const auto place = [](const Change& c) { return QString(propertyName(c.property)); };
  window.recordWith([&](const Change& change) {
    QString was;
    if (const auto* text = std::get_if<QString>(&change.oldValue)) was = *text;
    if (const auto* number = std::get_if<std::int32_t>(&change.oldValue)) was = QString::number(*number);
    heard.append(place(change) + u'=' + was);
  });
  window.Combo1->select(1);
  EXPECT_EQ(told(), "ListIndex=-1 Text=") << "the text that a row brings is told nobody else";
  window.Combo1->setText("a");
  EXPECT_EQ(told(), "Text=b ListIndex=1");
  window.Combo1->setRows({});
  EXPECT_EQ(told(), "ListIndex=0 Text=a List=");
  window.Button1[0].bringToFront();
  EXPECT_EQ(told(), "StackOrder=0");
  window.Button1[0].stackBelow(window.Button1[1]);
  EXPECT_EQ(told(), "StackOrder=2");
  window.Button1[2].stackAbove(window.Button1[0]);
  EXPECT_EQ(told(), "StackOrder=2");
  EXPECT_EQ(window.Button1[2].stackOrder(), 1);
  window.Button1[2].stackAbove(window.Button1[0]);
  EXPECT_EQ(told(), "") << "it stands there already";
  window.recordWith({});
}

}  // namespace
}  // namespace veneerer
