// Everything that is written into a Skin, with what stands against it and with every operation failing in
// turn.
#include <gtest/gtest.h>

#include <functional>

#include "designer/skinfixture.h"
#include "files/replacefiles.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

using test::Files;

/// As a process that is no more would have left it: no number of one is that high.
const QString kLeftOver = ".menu.ini.999999999-0123456789abcdef.saving";

class Saving : public test::SkinFixture {
protected:
  Saving() {
    start();
    form4().Text2->setText("a.cov");
  }

  /// A command that writes; its failure ends the program.
  struct Command {
    Element& button;
    const char* title;  ///< of what it tells
    int files;
    const char* last;  ///< of them
  };
  std::vector<Command> commands() {
    return {{*state().form2.Command1, "Button Settings", 1, "locked_button.ini"},
            {*form4().Command1, "Save Cover File", 2, "frames.ini"},
            {*form4().Command4, "Save Skin", 59, "locked_button.ini"}};
  }
  /// With leave to overwrite a cover file, but not to save it along with the Skin.
  void click(const Command& command) {
    world.dialogs.messages.clear();
    world.dialogs.answers.clear();
    world.dialogs.answers << (command.files == 2);
    designer->click(command.button);
  }
  bool failsAt(const Command& command) {
    try {
      click(command);
      return false;
    } catch (const RecordError& error) {
      EXPECT_TRUE(error.message().endsWith("the file can't be written: made to fail"));
      return true;
    }
  }

  Files contents() const { return test::filesBelow(path({})); }
  void restore(const Files& files) {
    QDir(path({})).removeRecursively();
    for (auto it = files.cbegin(); it != files.cend(); ++it) write(it.key(), *it);
  }

  /// Each file is as before or as after; nothing else is there but what a killed save may leave.
  static void expectWhole(const Files& now, const Files& before, const Files& after, bool wasKilled) {
    for (const QString& name : before.keys()) EXPECT_TRUE(now.contains(name)) << name.toStdString();
    for (auto it = now.cbegin(); it != now.cend(); ++it) {
      const QString bare = it.key().section(u'/', -1);
      if (wasKilled && isLeftOver(bare)) continue;
      EXPECT_TRUE((before.contains(it.key()) && before[it.key()] == *it) ||
                  (after.contains(it.key()) && after[it.key()] == *it))
          << it.key().toStdString();
    }
  }

  /// Lets each operation of the command fail, on the Skin as it is now. says runs the command and tells
  /// whether the operator has heard of a failure.
  void failInTurn(const std::function<bool()>& says, int operations) {
    const Files before = contents();
    world.disk.failAt(0);
    EXPECT_FALSE(says());
    EXPECT_EQ(world.disk.operations, operations);
    const Files after = contents();
    ASSERT_NE(before, after);
    for (int at = 1; at <= operations; ++at) {
      SCOPED_TRACE(at);
      restore(before);
      world.disk.failAt(at);
      EXPECT_TRUE(says());
      expectWhole(contents(), before, after, false);
      if (at % 8 != 1) continue;
      restore(before);
      world.disk.killAt(at);
      EXPECT_TRUE(says());
      expectWhole(contents(), before, after, true);
    }
    world.disk.failAt(0);
    EXPECT_FALSE(says());
  }
  void changeEverything() {
    for (Family* family : form1().families())
      for (Element* element : family->members()) element->setLeft(element->left() + 15);
    state().form2.Check1[0].setValue(1);
  }
};

TEST_F(Saving, EachCommandLeavesEachFileWholeWhateverFails) {
  for (const Command& command : commands()) click(command);
  changeEverything();
  for (const Command& command : commands()) {
    SCOPED_TRACE(command.title);
    failInTurn([&] { return failsAt(command); }, 2 * command.files);
  }
}

TEST_F(Saving, TheGrabLeavesEachFileWholeWhateverFails) {
  const QString backdrop = root.filePath("backdrop.bmp");
  test::writePicture(backdrop, 200, 200, Qt::red);
  form1().setPicture(state().pictures.load(backdrop));
  const auto says = [&] {
    world.dialogs.messages.clear();
    designer->click(*state().form5.Command1);
    return !world.dialogs.messages.isEmpty();
  };
  QDir(path("images")).removeRecursively();
  write("menu.ini", "the folder is there");
  failInTurn(says, 1 + 2 * 2);
  form1().Picture2[0].place(15, 30, 60, 45);
  failInTurn(says, 1 + 2 * 2);  // over files that are there

  const Files before = contents();
  QFile::remove(path("images/Player.bmp"));
  QDir().mkpath(path("images/Player.bmp"));
  form1().Picture2[0].place(15, 30, 90, 90);
  form1().Picture2[0].setBorderStyle(1);
  EXPECT_TRUE(says()) << "both files are looked at before the first is written";
  EXPECT_EQ(bytes("images/Menu.bmp"), before.value("images/Menu.bmp"));
  EXPECT_EQ(form1().Picture2[0].as<std::int32_t>(Property::BorderStyle), 1);
}

TEST_F(Saving, WhatStandsUnderAFilesNameIsToldAndNothingIsWritten) {
  const Files old{{"menu.ini", "old"}};
  for (const Command& command : commands()) {
    restore(old);
    QDir().mkpath(path(command.last));
    world.disk.failAt(0);
    click(command);
    ASSERT_EQ(world.dialogs.messages.size(), 1);
    EXPECT_EQ(world.dialogs.messages[0].text.toStdString(),
              std::string("Nothing is written. ") + command.last +
                  ": there is something under this name that is no file");
    EXPECT_EQ(world.disk.operations, 0);
    EXPECT_EQ(contents(), old);
  }
  restore(old);
  click(commands().back());
  EXPECT_EQ(files().size(), 59) << "and work goes on";
}

TEST_F(Saving, ANoteTellsHowManyFilesWereWritten) {
  for (const Command& command : commands()) click(command);
  const auto saved = [&](const Command& command) {
    click(command);
    return state().notes.texts().last().toStdString();
  };
  const std::vector<Command> all = commands();
  EXPECT_EQ(saved(all[2]), "Saved in S: 59 files, none changed.");
  EXPECT_EQ(saved(all[1]), "Saved in S: 2 files, none changed.");
  EXPECT_EQ(saved(all[0]), "Saved in S: 1 file, none changed.");
  form1().Label39->setFontSize(31);
  EXPECT_EQ(saved(all[2]), "Saved in S: 59 files, 2 changed.");
  const qsizetype notes = state().notes.texts().size();
  QFile::remove(path("menu_v2.ini"));
  QDir().mkpath(path("menu_v2.ini"));
  click(all[2]);
  EXPECT_EQ(state().notes.texts().size(), notes) << "a save that is refused says nothing of the kind";
}

TEST_F(Saving, AFolderThatIsGoneIsToldAndWorkGoesOn) {
  QDir(path({})).removeRecursively();
  for (const Command& command : commands()) {
    click(command);
    ASSERT_EQ(world.dialogs.messages.size(), 1) << command.title;
    EXPECT_EQ(world.dialogs.messages[0].title, command.title);
    EXPECT_TRUE(world.dialogs.messages[0].text.endsWith(root.path() + "/Skins/S is gone"));
  }
  makeSkin("S");
  click(commands().back());
  EXPECT_EQ(files().size(), 59);
}

TEST_F(Saving, TheCoversAreRefusedOnTheirOwn) {
  QDir().mkpath(path("a.cov"));
  world.dialogs.answers << true << true;
  designer->click(*form4().Command4);
  EXPECT_EQ(files().size(), 59);
  EXPECT_EQ(world.dialogs.messages.last().title, u"Save Cover File");
  EXPECT_TRUE(world.dialogs.messages.last().text.startsWith(
      "The record files are saved, the cover layout isn't. a.cov: "));
}

TEST_F(Saving, AFileThatNoLoadWouldTakeIsNotReplaced) {
  write("a.cov", QByteArray(kMostRecordBytes + 1, ' '));
  write("menu_v2.ini", QByteArray(kMostRecordBytes + 1, ' '));
  world.dialogs.answers << true << true;
  designer->click(*form4().Command4);
  EXPECT_TRUE(world.dialogs.messages.last().text.startsWith("Nothing is written. menu_v2.ini: "));
  QFile::remove(path("menu_v2.ini"));
  world.dialogs.answers << true << true;
  designer->click(*form4().Command4);
  EXPECT_TRUE(world.dialogs.messages.last().text.contains("the cover layout isn't. a.cov: "));
  EXPECT_EQ(bytes("a.cov").size(), kMostRecordBytes + 1);
}

TEST_F(Saving, ALoadTellsWhatOnlyASaveWouldMeet) {
  makeSkin("T");
  QDir().mkpath(root.path() + "/Skins/T/menu_v2.ini");
  designer->reload("T");
  ASSERT_EQ(state().notes.texts().size(), 1);
  EXPECT_TRUE(state().notes.texts().first().startsWith("No save can write menu_v2.ini: "));
}

// The work in hand is kept; only what such a file holds may still end the program.
TEST_F(Saving, ASkinThatCantBeReadIsNotTakenInHand) {
  makeSkin("T");
  QDir().mkpath(root.path() + "/Skins/T/queue.ini");
  designer->type(form4().Text1[0], "900");
  designer->reload("T");
  EXPECT_TRUE(world.dialogs.messages.last().text.startsWith("Nothing is loaded. queue.ini: "));
  EXPECT_EQ(form4().Combo3->text(), u"S");
  EXPECT_EQ(form4().Text1[0].text(), u"900");
  EXPECT_TRUE(designer->history().isModified());
}

TEST_F(Saving, WhatAKilledSaveLeftIsNeitherListedNorKept) {
  const QString cover = ".a.cov.999999999-0123456789abcdef.saving";
  write(kLeftOver, "half");
  write(cover, "half");
  designer->reload("S");
  EXPECT_EQ(form4().File1->list(), QStringList());
  designer->save();
  EXPECT_FALSE(contents().contains(kLeftOver) || contents().contains(cover));
  // A removal that fails keeps no save from being done.
  write(kLeftOver, "half");
  world.disk.failAt(1);
  designer->save();
  EXPECT_EQ(contents().size(), 60);
}

}  // namespace
}  // namespace veneerer
