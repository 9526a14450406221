// The real settings store and the words of the real dialogs.
#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

#include "support/pictures.h"
#include "ui/qtplatform.h"

namespace veneerer {
namespace {

TEST(Settings, AreReadFromTheUsersFileAndNeverWritten) {
  const QTemporaryDir folder;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
  const auto skin = [] {
    return IniSettings()
        .value(QStringLiteral("Settings"), QStringLiteral("Skin"), QStringLiteral("none"))
        .toStdString();
  };
  const QString file = folder.filePath(QStringLiteral("V-Quill 8.ini"));
  EXPECT_EQ(skin(), "none");
  EXPECT_FALSE(QFile::exists(file));
  test::writeBytes(file, "[Settings]\nSkin=Black_and_Blue_gif_V8.0(800x600)\n");
  EXPECT_EQ(skin(), "Black_and_Blue_gif_V8.0(800x600)");
  test::writeBytes(file, "[Settings]\nSkin=Neon, wide\n");
  EXPECT_EQ(skin(), "Neon, wide");
}

TEST(Dialogs, FiltersTakeTheToolkitsForm) {
  const auto form = [](const char* filter) {
    return dialogFilter(QString::fromLatin1(filter)).toStdString();
  };
  EXPECT_EQ(form("Image Files|*.bmp;*.jpg;*.gif"), "Image Files (*.bmp *.jpg *.gif)");
  EXPECT_EQ(form("GIF Files|*.gif|All|*.*"), "GIF Files (*.gif);;All (*.*)");
  EXPECT_EQ(form("odd"), "");
}

}  // namespace
}  // namespace veneerer
