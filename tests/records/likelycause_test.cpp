// Where a value can't be taken, its likeliest cause stands some lines ahead of it.
#include "records/likelycause.h"

#include <gtest/gtest.h>

#include "records/layoutreader.h"
#include "records/layoutwriter.h"
#include "records/recorderror.h"
#include "records/recordfiles.h"

namespace veneerer {
namespace {

using Lines = QList<QByteArray>;

class Causes : public testing::Test {
protected:
  Causes() {
    for (Element* button : state.form1.lvButtons_H1.members())
      button->set(Property::Caption, QString("Item"));
    menu = composeRecords(menuFile(state)).split('\n');
  }

  RecordError error(Layout (*make)(State&), const QByteArray& bytes) {
    const SkinFolder folder(QStringLiteral("/skins/S"));
    const Screen screen;
    Loading loading{state, folder, screen};
    try {
      readRecords(make(state), bytes, loading);
    } catch (const RecordError& found) {
      return found;
    }
    ADD_FAILURE() << "the file can be read";
    return {{}, 0, {}, {}, {}};
  }
  std::string cause(Layout (*make)(State&), const QByteArray& bytes) {
    return error(make, bytes).trace().cause.toStdString();
  }
  static QByteArray joined(const Lines& lines) { return lines.join('\n'); }

  State state;
  Lines menu;  ///< as it was composed before anything was read into the state
};

TEST_F(Causes, ACommaAheadIsTold) {
  // As a save leaves it, the caption stands in the label line too.
  Lines lines = menu;
  lines[4] = "Menu Button Rock, Pop\r";
  lines[5] = "Rock, Pop\r";
  EXPECT_EQ(cause(menuFile, joined(lines)),
            "a comma in the caption in the label line on line 5, one line up (Menu Button Rock, Pop), which "
            "ends the value and shifts all behind it");
  lines[4] = menu[4];
  lines[5] = "Rock, Pop\r";
  EXPECT_EQ(cause(menuFile, joined(lines)),
            "a comma in the caption on line 6 (Rock, Pop), which ends the value and shifts all behind it");
  lines = menu;
  lines[10] = " 12,5 \r";
  EXPECT_NE(cause(menuFile, joined(lines)).find("a comma in the number on line 11"), std::string::npos);
  EXPECT_NE(cause(menuFile, joined(lines)).find("lines up ( 12,5 ); a number takes a full stop"),
            std::string::npos);
}

TEST_F(Causes, AQuoteThatIsntClosedIsTold) {
  Lines lines = menu;
  lines[5] = "\"Rock\r";
  const std::string told = cause(menuFile, joined(lines));
  EXPECT_EQ(told.find("a double quote opens in the caption on line 6, "), 0u) << told;
}

TEST_F(Causes, LinesTooManyAndTooFewAreTold) {
  Lines lines = menu;
  lines.insert(8, " 7 \r");
  EXPECT_EQ(cause(menuFile, joined(lines)), "one line too many between line 5 and line 18");
  lines = menu;
  lines.remove(8, 2);
  EXPECT_EQ(cause(menuFile, joined(lines)), "two missing lines between line 5 and line 18");
  lines = menu;
  EXPECT_EQ(cause(menuFile, joined(lines.mid(0, 9)) + '\n'), "the file is cut off: it has 9 of 186 lines");
}

TEST_F(Causes, WhatTellsNothingIsLeftOut) {
  Lines lines = menu;
  lines[7] = "wide\r";
  EXPECT_EQ(cause(menuFile, joined(lines)), "");
  EXPECT_EQ(cause(fontFile, QByteArray("\xEF\xBB\xBF") + composeRecords(fontFile(state))),
            "a byte order mark at the file's start, which counts as text");
}

TEST_F(Causes, AReportTellsAllThatIsKnown) {
  Lines lines = menu;
  lines[5] = "Rock, \aPop\r";
  EXPECT_EQ(
      error(menuFile, joined(lines)).report().toStdString(),
      "menu.ini:6: Form1.lvButtons_H1(0) ButtonShape: a number is due here, but \"?Pop\" stands in its "
      "place\n\n"
      "File: menu.ini\n"
      "Line: 6\n"
      "Element: Form1.lvButtons_H1(0)\n"
      "Field: ButtonShape\n"
      "Found: ?Pop\n"
      "Skin: /skins/S\n"
      "Likely cause: a comma in the caption on line 6 (Rock, ?Pop), which ends the value and shifts all "
      "behind it");
  const RecordError written("queue.ini", 0, {}, {}, "the file can't be written: full", {"/skins/S"});
  EXPECT_EQ(written.report().toStdString(),
            "queue.ini: the file can't be written: full\n\nFile: queue.ini\nSkin: /skins/S");
}

}  // namespace
}  // namespace veneerer
