// The scripts that the manual shows, played on a Skin that comes with the program.
#include <QRegularExpression>

#include "batchrun.h"

namespace veneerer {
namespace {

/// What stands between fences that name no language, as far as it is a script.
QStringList shownScripts() {
  static const QRegularExpression fenced(QStringLiteral("\n```([a-z]*)\n(.*?)\n```\n"),
                                         QRegularExpression::DotMatchesEverythingOption);
  QStringList scripts;
  const QString page = QString::fromUtf8(test::bytesOf(VENEERER_SOURCE_DIR "/docs/manual/scripts.md"));
  for (const auto& found : fenced.globalMatch(page))
    if (const QString text = found.captured(2);
        found.captured(1).isEmpty() && (text.startsWith("screen ") || text.startsWith('#')))
      scripts.append(text);
  return scripts;
}

TEST_F(BatchTest, PlaysEachScriptOfTheManualAndItChangesSomething) {
  const QString shipped = VENEERER_SOURCE_DIR "/Skins/Copper_Lounge(1024x768)";
  const QString skin = path("Skins/Copy");
  ASSERT_EQ(run({"copy", shipped, "--to", skin}), 0) << "a script may write over pictures";
  ASSERT_EQ(run({"dump", skin}), 0);
  const QByteArray before = out;
  const QStringList scripts = shownScripts();
  ASSERT_GE(scripts.size(), 5);
  for (const QString& script : scripts) {
    test::writeBytes(path("script.txt"), script.toUtf8() + '\n');
    EXPECT_EQ(run({"dump", skin, "--script", path("script.txt")}), 0) << err.toStdString();
    EXPECT_NE(out, before) << script.toStdString();
  }
}

}  // namespace
}  // namespace veneerer
