#include "platform/programplace.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/failingdisk.h"
#include "support/files.h"

namespace veneerer {
namespace {

struct Places : testing::Test {
  Places() {
    test::writeBytes(at("share/Skins/Blue/menu.ini"), "menu");
    test::writeBytes(at("share/Skins/Blue/images/Menu.bmp"), "picture");
    test::writeBytes(at("share/images/star 0.png"), "star");
    QDir(root.path()).mkpath("bin");
  }
  QString at(const char* name) const { return root.filePath(QString::fromLatin1(name)); }
  ProgramPlaces places() const { return {{}, {}, at("bin"), at("home/veneerer"), {at("none"), at("share")}}; }
  QString found(const ProgramPlaces& looked) {
    const FoundPlace place = findPlace(looked, disk);
    EXPECT_EQ(place.fault, QString());
    return place.folder.path;
  }

  QTemporaryDir root;
  test::FailingDisk disk;
};

TEST_F(Places, CountInTheirOrder) {
  ProgramPlaces all = places();
  QDir(root.path()).mkpath("bin/skins");
  EXPECT_EQ(found(all), at("bin")) << "the Skins beside the program, in either spelling of their folder";
  all.given = at("given");
  EXPECT_EQ(found(all), at("given")) << "also where there is nothing yet";
  all.skin = at("share/Skins/Blue/");
  const FoundPlace around = findPlace(all, disk);
  EXPECT_EQ(around.folder.skinsRoot, at("share/Skins"));
  EXPECT_EQ(around.folder.path, at("given")) << "the images beside the program are asked for apart";
  all.given.clear();
  EXPECT_EQ(found(all), at("share"));
  EXPECT_EQ(disk.operations, 0) << "none of these makes a folder";
}

TEST_F(Places, TheUsersFolderIsMadeOnce) {
  EXPECT_EQ(found(places()), at("home/veneerer"));
  const test::Files made = test::filesBelow(at("home/veneerer"));
  EXPECT_EQ(made, test::filesBelow(at("share")));
  // From now on it is the user's own.
  test::writeBytes(at("home/veneerer/Skins/Blue/menu.ini"), "mine");
  test::writeBytes(at("share/Skins/Red/menu.ini"), "new");
  disk.operations = 0;
  EXPECT_EQ(found(places()), at("home/veneerer"));
  EXPECT_EQ(disk.operations, 0);
  EXPECT_EQ(test::bytesOf(at("home/veneerer/Skins/Blue/menu.ini")), "mine");

  ProgramPlaces without = places();
  without.user = at("other");
  without.shared = {at("none")};
  EXPECT_EQ(found(without), at("other")) << "there is nothing to copy";
  EXPECT_FALSE(QFileInfo::exists(at("other")));
}

TEST_F(Places, AFolderThatCantBeMadeIsToldAndLeavesNoPartOfItself) {
  ASSERT_EQ(found(places()), at("home/veneerer"));
  const int operations = disk.operations;
  const test::Files whole = test::filesBelow(at("home/veneerer"));
  ASSERT_GT(operations, 6);
  for (int failing = 1; failing <= operations; ++failing) {
    SCOPED_TRACE(failing);
    QDir(at("home")).removeRecursively();
    disk.failAt(failing);
    const FoundPlace place = findPlace(places(), disk);
    EXPECT_TRUE(place.fault.contains("made to fail")) << place.fault.toStdString();
    EXPECT_EQ(place.folder.path, at("home/veneerer"));
    EXPECT_FALSE(QFileInfo::exists(at("home/veneerer/Skins")));
    for (const QString& file : test::filesBelow(at("home/veneerer")).keys())
      EXPECT_TRUE(whole.contains(file)) << file.toStdString();
    disk.failAt(0);
    found(places());
    EXPECT_EQ(test::filesBelow(at("home/veneerer")), whole) << "the next start finishes it";
  }
}

}  // namespace
}  // namespace veneerer
