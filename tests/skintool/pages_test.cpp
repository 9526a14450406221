// What puts all screens of a Skin into one file, by its command line.
#include "skintool/pages.h"

#include <QImage>

#include "records/recorderror.h"
#include "skintool/batchrun.h"
#include "support/scriptedplatform.h"

namespace veneerer {
namespace {

class Pages : public BatchTest {
protected:
  QString write(const QString& name, const QByteArray& bytes) {
    test::writeBytes(path(name), bytes);
    return path(name);
  }
};

TEST_F(Pages, AreDrawnBehindTheScriptAndTakeTheSizeOfTheSkin) {
  const QString script = write("script", "screen \"Queue Screen\"\nresize 6000 3000\n");
  ASSERT_EQ(run({"sheet", skin(), "--to", path("all.png"), "--script", script}), 0) << err.toStdString();
  // Each screen is 320 to 160 pixels.
  EXPECT_EQ(QImage(path("all.png")).size(), QSize(16 + 8 * 336, 16 + 4 * (160 + 24 + 16)));
  ASSERT_EQ(run({"preview", skin(), "--to", path("all.html"), "--script", script}), 0) << err.toStdString();
  const QByteArray page = test::bytesOf(path("all.html"));
  EXPECT_EQ(page.count("<img width=\"400\" height=\"200\""), 32);
  EXPECT_TRUE(page.contains("<title>S</title>")) << "the Skin's name";
  EXPECT_TRUE(out.isEmpty());
}

TEST_F(Pages, ArentBegunWhereTheyCantBeWritten) {
  QDir().mkpath(path("taken"));
  for (const QString command : {"sheet", "preview", "buttons"}) {
    const QStringList words =
        QStringList(command) + (command == "buttons" ? QStringList() : QStringList(skin()));
    EXPECT_EQ(run(words + QStringList{"--to", path("gone/file")}), 1) << command.toStdString();
    EXPECT_EQ(run(words + QStringList{"--to", path("taken")}), 1) << command.toStdString();
    EXPECT_TRUE(err.startsWith("taken: ")) << err.toStdString();
    EXPECT_EQ(run(words), 2) << "--to is missing";
  }
  EXPECT_FALSE(QFile::exists(path("gone")));
  EXPECT_EQ(run({"sheet", "--to", path("all.png")}), 2) << "a Skin is missing";
  ASSERT_EQ(run({"buttons", "--to", path("buttons.png")}), 0);
  EXPECT_GT(QImage(path("buttons.png")).width(), 500);
}

TEST_F(Pages, AreWholeOrLeftAsTheyWere) {
  test::ScriptedPlatform world;
  Designer designer(world.platform);
  designer.startUp();
  designer.state().form1.place(0, 0, 15 * 40, 15 * 30);
  const QString file = write("skin.html", "old");
  for (int at = 1; at <= 2; ++at) {
    world.disk.failAt(at);
    EXPECT_THROW(writeWebPage(designer, file), RecordError) << at;
    EXPECT_EQ(test::bytesOf(file), "old");
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Files | QDir::Hidden), QStringList("skin.html"));
  }
  world.disk.failAt(0);
  writeWebPage(designer, file);
  EXPECT_TRUE(test::bytesOf(file).endsWith("</html>\n"));
}

}  // namespace
}  // namespace veneerer
