// Everything that is written into a Skin, with what stands against it and with every operation failing in
// turn.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDirIterator>
#include <functional>

#include "designer/skinfixture.h"
#include "files/replacefiles.h"
#include "records/recorderror.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

using Files = QMap<QString, QByteArray>;

/// As a process that is no more would have left it: no number of one is that high.
const QString kLeftOver = QStringLiteral(".menu.ini.999999999-0123456789abcdef.saving");

class Saving : public test::SkinFixture {
protected:
  Saving() {
    start();
    world.dialogs.messages.clear();
  }

  Files contents() const {
    Files files;
    QDirIterator it(path(QString()), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
      QFile file(it.next());
      if (file.open(QIODevice::ReadOnly))
        files.insert(file.fileName().mid(path(QString()).size()), file.readAll());
    }
    return files;
  }
  void restore(const Files& files) {
    const Files now = contents();
    for (const QString& name : now.keys())
      if (!files.contains(name)) QFile::remove(path(name));
    QDir(path(QString())).rmdir(QStringLiteral("images"));
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
      QDir().mkpath(QFileInfo(path(it.key())).path());
      if (!now.contains(it.key()) || now[it.key()] != *it) write(it.key(), *it);
    }
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
  /// For commands whose failure ends the program.
  static bool isFatal(const std::function<void()>& command) {
    try {
      command();
      return false;
    } catch (const RecordError& error) {
      EXPECT_TRUE(error.message().endsWith(QStringLiteral("the file can't be written: made to fail")));
      return true;
    }
  }
  /// A Skin that holds nothing but an old menu.ini.
  void startAnew() {
    QDir(path(QString())).removeRecursively();
    makeSkin(QStringLiteral("S"));
    write(QStringLiteral("menu.ini"), "old");
  }
  void changeEverything() {
    for (Family* family : form1().families())
      for (Element* element : family->members()) element->setLeft(element->left() + 15);
  }
};

TEST_F(Saving, SaveSkinLeavesEachFileWholeWhateverFails) {
  designer->save();
  changeEverything();
  failInTurn([&] { return isFatal([&] { designer->click(*form4().Command4); }); }, 2 * 59);
}

TEST_F(Saving, TheOtherSavesLeaveEachFileWholeWhateverFails) {
  form4().Text2->setText(QStringLiteral("a.cov"));
  designer->click(*form4().Command1);
  changeEverything();
  failInTurn(
      [&] {
        world.dialogs.answers << true;
        return isFatal([&] { designer->click(*form4().Command1); });
      },
      2 * 2);
  failInTurn([&] { return isFatal([&] { designer->click(*state().form2.Command1); }); }, 2);
}

TEST_F(Saving, TheGrabLeavesEachFileWholeWhateverFails) {
  const QString backdrop = root.filePath(QStringLiteral("backdrop.bmp"));
  test::writePicture(backdrop, 200, 200, Qt::red);
  form1().setPicture(state().pictures.load(backdrop));
  const auto says = [&] {
    world.dialogs.messages.clear();
    designer->click(*state().form5.Command1);
    return !world.dialogs.messages.isEmpty();
  };
  QDir(path(QStringLiteral("images"))).removeRecursively();
  write(QStringLiteral("menu.ini"), "the folder is there");
  failInTurn(says, 1 + 2 * 2);
  // Over files that are there.
  form1().Picture2[0].place(15, 30, 60, 45);
  failInTurn(says, 1 + 2 * 2);

  const Files before = contents();
  QFile::remove(path(QStringLiteral("images/Player.bmp")));
  QDir().mkpath(path(QStringLiteral("images/Player.bmp")));
  form1().Picture2[0].place(15, 30, 90, 90);
  form1().Picture2[0].setBorderStyle(1);
  EXPECT_TRUE(says()) << "both files are looked at before the first is written";
  EXPECT_EQ(bytes(QStringLiteral("images/Menu.bmp")), before.value(QStringLiteral("images/Menu.bmp")));
  EXPECT_EQ(form1().Picture2[0].as<std::int32_t>(Property::BorderStyle), 1);
}

TEST_F(Saving, WhatStandsUnderAFilesNameIsToldAndNothingIsWritten) {
  const QString outside = root.filePath(QStringLiteral("precious"));
  test::writeBytes(outside, "precious");
  const struct {
    const char* reason;
    std::function<void(const QString&)> put;
  } cases[] = {
      {"that is no file", [](const QString& name) { QDir().mkpath(name); }},
      {"that is no file", [](const QString& name) { ::mkfifo(QFile::encodeName(name).constData(), 0600); }},
      {"leads nowhere", [](const QString& name) { QFile::link(QStringLiteral("gone"), name); }},
      {"outside the folder", [&](const QString& name) { QFile::link(outside, name); }},
  };
  // One name of each command; the Skin's last file stands for all of them.
  const QString names[] = {QStringLiteral("locked_button.ini"), QStringLiteral("frames.ini"),
                           QStringLiteral("locked_button.ini")};
  Element* const commands[] = {&*form4().Command4, &*form4().Command1, &*state().form2.Command1};
  form4().Text2->setText(QStringLiteral("a.cov"));
  for (const auto& c : cases)
    for (int i = 0; i < 3; ++i) {
      startAnew();
      c.put(path(names[i]));
      world.dialogs.messages.clear();
      world.disk.failAt(0);
      designer->click(*commands[i]);
      ASSERT_EQ(world.dialogs.messages.size(), 1);
      const std::string told = world.dialogs.messages.first().text.toStdString();
      EXPECT_TRUE(told.starts_with("Nothing is written. " + names[i].toStdString() + ": ")) << told;
      EXPECT_NE(told.find(c.reason), std::string::npos) << told;
      EXPECT_EQ(world.disk.operations, 0);
      EXPECT_EQ(bytes(QStringLiteral("menu.ini")), "old");
    }
  startAnew();
  designer->click(*form4().Command4);
  EXPECT_EQ(files().size(), 59) << "and work goes on";
  QFile precious(outside);
  ASSERT_TRUE(precious.open(QIODevice::ReadOnly));
  EXPECT_EQ(precious.readAll(), "precious");
}

TEST_F(Saving, AFolderThatIsGoneIsToldAndWorkGoesOn) {
  QDir(path(QString())).removeRecursively();
  form4().Text2->setText(QStringLiteral("c.cov"));
  designer->click(*form4().Command4);
  designer->click(*form4().Command1);
  designer->click(*state().form2.Command1);
  QStringList titles;
  for (const auto& message : world.dialogs.messages) {
    titles << message.title;
    EXPECT_TRUE(message.text.endsWith(root.path() + QStringLiteral("/Skins/S is gone")))
        << message.text.toStdString();
  }
  EXPECT_EQ(titles, (QStringList{QStringLiteral("Save Skin"), QStringLiteral("Save Cover File"),
                                 QStringLiteral("Button Settings")}));
  makeSkin(QStringLiteral("S"));
  designer->click(*form4().Command4);
  EXPECT_EQ(files().size(), 59);
}

TEST_F(Saving, TheCoversAreRefusedOnTheirOwn) {
  QDir().mkpath(path(QStringLiteral("a.cov")));
  form4().Text2->setText(QStringLiteral("a.cov"));
  world.dialogs.answers << true << true;
  designer->click(*form4().Command4);
  EXPECT_EQ(files().size(), 59);
  EXPECT_EQ(world.dialogs.messages.last().title, u"Save Cover File");
  EXPECT_TRUE(world.dialogs.messages.last().text.startsWith(QStringLiteral("Nothing is written. a.cov: ")));
}

TEST_F(Saving, WhatAKilledSaveLeftIsNeitherListedNorKept) {
  const QString cover = QStringLiteral(".a.cov.999999999-0123456789abcdef.saving");
  write(kLeftOver, "half");
  write(cover, "half");
  designer->reload(QStringLiteral("S"));
  EXPECT_EQ(form4().File1->list(), QStringList());
  designer->save();
  EXPECT_FALSE(contents().contains(kLeftOver) || contents().contains(cover));
  // A removal that fails keeps no save from being done.
  write(kLeftOver, "half");
  world.disk.failAt(1);
  designer->save();
  EXPECT_EQ(contents().size(), 60);
}

TEST_F(Saving, ASkinWhoseFolderTakesNoNewFilesIsWrittenInPlace) {
  designer->save();
  changeEverything();
  const Files before = contents();
  world.disk.isFolderOpen = false;
  world.disk.failAt(0);
  designer->save();
  EXPECT_EQ(world.disk.operations, 59);
  EXPECT_NE(contents(), before);
  EXPECT_EQ(contents().keys(), before.keys());
  QFile::remove(path(QStringLiteral("tab.ini")));
  designer->save();
  EXPECT_EQ(world.disk.operations, 59);
  EXPECT_TRUE(
      world.dialogs.messages.last().text.endsWith(QStringLiteral("tab.ini: the folder takes no new files")));
}

TEST_F(Saving, WhatIsNoFileEndsALoadWithItsName) {
  QDir().mkpath(path(QStringLiteral("spin.ini")));
  QFile::link(QStringLiteral("gone"), path(QStringLiteral("main.ini")));
  for (const char* name : {"main.ini", "spin.ini"}) {
    try {
      designer->reload(QStringLiteral("S"));
      ADD_FAILURE() << name;
    } catch (const RecordError& error) {
      EXPECT_EQ(error.file(), QLatin1String(name));
    }
    QFile::remove(path(QString::fromLatin1(name)));
  }
}

}  // namespace
}  // namespace veneerer
