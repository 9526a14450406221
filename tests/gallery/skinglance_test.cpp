// What is seen of a Skin that nobody takes in hand.
#include "gallery/skinglance.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <thread>

#include "support/files.h"
#include "support/pictures.h"
#include "support/scriptedplatform.h"

namespace veneerer {
namespace {

class Glance : public testing::Test {
protected:
  Glance() {
    world.platform.folder.path = root.path();
    write("menu_only/readme.txt", "none of the record files is here");
    write("good/resolution.ini", "a\r\nb\r\nc\r\n 640 \r\n 480 \r\n");
    write("broken/menu.ini", "INI Version\r\n 2 \r\nwide\r\n");
  }
  void write(const char* name, const QByteArray& bytes) {
    test::writeBytes(root.filePath(QStringLiteral("Skins/") + QLatin1String(name)), bytes);
  }

  QTemporaryDir root;
  test::ScriptedPlatform world{ScriptedDialogs::Unexpected::Fail};
};

TEST_F(Glance, ShowsTheMainScreenSmallAndWhatIsKnown) {
  const SkinGlance glance = glanceAt(world.platform, "good", 100);
  EXPECT_EQ(glance.fault, QString());
  EXPECT_EQ(glance.resolution, u"640 x 480");
  EXPECT_EQ(glance.picture.width(), 100);
  EXPECT_GT(glance.picture.height(), 60);
  EXPECT_TRUE(glance.lastSaved.isValid());
  EXPECT_FALSE(glanceAt(world.platform, "menu_only", 100).lastSaved.isValid()) << "there is no record file";
  EXPECT_TRUE(world.dialogs.messages.isEmpty());
  EXPECT_EQ(world.disk.operations, 0);
}

TEST_F(Glance, TellsWhyASkinCantBeLoaded) {
  const SkinGlance glance = glanceAt(world.platform, "broken", 100);
  EXPECT_TRUE(glance.picture.isNull());
  EXPECT_TRUE(glance.fault.startsWith("menu.ini:3: Form1.Picture2(0) Height: a number is due here"))
      << glance.fault.toStdString();
  EXPECT_GT(countFindings(world.platform, "broken"), 0);
  EXPECT_EQ(countFindings(world.platform, "good"), 0);
}

TEST_F(Glance, IsTheSameOnAnyThread) {
  const QImage here = glanceAt(world.platform, "good", 100).picture;
  QImage there[2];
  {
    std::jthread one([&] { there[0] = glanceAt(world.platform, "good", 100).picture; });
    std::jthread other([&] { there[1] = glanceAt(world.platform, "good", 100).picture; });
  }
  EXPECT_TRUE(here == there[0] && here == there[1]);
}

}  // namespace
}  // namespace veneerer
