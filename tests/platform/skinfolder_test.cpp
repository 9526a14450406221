#include "platform/skinfolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/pictures.h"

using namespace veneerer;

namespace {

struct SkinFolderTest : testing::Test {
  SkinFolderTest() {
    QDir().mkpath(at("Skins/Blue/images"));
    for (const char* name :
         {"Skins/Blue/images/Menu.bmp", "Skins/Blue/images/star 0.png", "Skins/Blue/menu.ini", "outside.bmp"})
      test::writeBytes(at(name), "x");
  }
  QString at(const char* relative) { return root.filePath(QString::fromLatin1(relative)); }
  SkinFolder blue() { return SkinFolder(ProgramFolder{root.path()}, "Blue"); }
  QString resolve(const char* reference) { return blue().resolve(QString::fromLatin1(reference)); }

  QTemporaryDir root;
};

}  // namespace

TEST_F(SkinFolderTest, ReferencesInEitherSlashAndAnyCase) {
  const QString menu = at("Skins/Blue/images/Menu.bmp");
  for (const char* reference : {"\\images\\Menu.bmp", "/images/Menu.bmp", "\\Images\\MENU.BMP",
                                "\\\\images\\/menu.bmp", "\\images\\..\\IMAGES\\menu.bmp"})
    EXPECT_EQ(QDir::cleanPath(resolve(reference)), menu) << reference;
}

TEST_F(SkinFolderTest, TheExactSpellingComesFirst) {
  test::writeBytes(at("Skins/Blue/images/menu.bmp"), "y");
  EXPECT_EQ(resolve("\\images\\menu.bmp"), at("Skins/Blue/images/menu.bmp"));
  EXPECT_EQ(resolve("\\images\\Menu.bmp"), at("Skins/Blue/images/Menu.bmp"));
}

TEST_F(SkinFolderTest, OnlyAPlainFileIsFound) {
  for (const char* reference :
       {"", "\\", "\\images", "\\images\\none.bmp", "\\menu.ini\\Menu.bmp", "\\..\\.."})
    EXPECT_EQ(resolve(reference), QString()) << reference;
  EXPECT_EQ(blue().resolve(QString::fromLatin1("\\images\\Menu.bmp\0x", 18)), QString());
}

TEST_F(SkinFolderTest, AnEndlessReferenceLeadsNowhere) {
  const QString name = "\\images\\Menu.bmp";
  for (const char* detour : {"\\.", "\\IMAGES\\.."}) {
    const QString way = QString::fromLatin1(detour);
    const qsizetype most = (kLongestReference - name.size()) / way.size();
    EXPECT_EQ(QDir::cleanPath(blue().resolve(way.repeated(most) + name)), at("Skins/Blue/images/Menu.bmp"))
        << detour;
    EXPECT_EQ(blue().resolve(way.repeated(most + 1) + name), QString()) << detour;
  }
}

TEST_F(SkinFolderTest, AWayBackLeadsWhereTheSystemLeads) {
  QDir().mkpath(at("elsewhere/inner"));
  test::writeBytes(at("elsewhere/a.bmp"), "x");
  QFile::link(at("elsewhere/inner"), at("Skins/Blue/link"));
  EXPECT_EQ(QFileInfo(resolve("\\Link\\..\\A.bmp")).canonicalFilePath(), at("elsewhere/a.bmp"));
  QFile::link(at("Skins/Blue"), at("Skins/Blue/self"));
  EXPECT_EQ(QFileInfo(resolve("\\Self\\SELF\\IMAGES\\menu.bmp")).canonicalFilePath(),
            at("Skins/Blue/images/Menu.bmp"));
  EXPECT_EQ(resolve("\\MENU.INI\\..\\images\\menu.bmp"), QString()) << "a file has no way back";
}

TEST_F(SkinFolderTest, AReferenceMayLeadOutOfTheFolder) {
  EXPECT_EQ(QDir::cleanPath(resolve("\\..\\..\\outside.bmp")), at("outside.bmp"));
  EXPECT_FALSE(blue().contains(resolve("\\..\\..\\outside.bmp")));
}

TEST_F(SkinFolderTest, AReferenceIsAppendedWithoutASeparator) {
  EXPECT_EQ(resolve("images\\Menu.bmp"), QString());
  test::writeBytes(at("Skins/Blueprint.bmp"), "x");
  EXPECT_EQ(resolve("print.bmp"), at("Skins/Blueprint.bmp"));
}

TEST_F(SkinFolderTest, ContainsWhatLiesInsideWithLinksResolved) {
  const SkinFolder skin = blue();
  QDir().mkpath(at("Skins/Blue2"));
  test::writeBytes(at("Skins/Blue2/a.bmp"), "x");
  QFile::link(at("outside.bmp"), at("Skins/Blue/images/out.bmp"));
  QFile::link(at("nowhere.bmp"), at("Skins/Blue/images/dangling.bmp"));
  QFile::link(root.path(), at("Skins/Blue/up"));
  for (const char* inside : {"Skins/Blue/images/Menu.bmp", "Skins/Blue/images/new.bmp",
                             "Skins/Blue/images/../menu.ini", "Skins/Blue/up/Skins/Blue/menu.ini"})
    EXPECT_TRUE(skin.contains(at(inside))) << inside;
  for (const char* outside :
       {"outside.bmp", "Skins/Blue", "Skins/Blue2/a.bmp", "Skins/Blue/../../outside.bmp",
        "Skins/Blue/../new.bmp", "Skins/Blue/images/out.bmp", "Skins/Blue/images/dangling.bmp",
        "Skins/Blue/up/outside.bmp", "Skins/Blue/none/new.bmp"})
    EXPECT_FALSE(skin.contains(at(outside))) << outside;
}

TEST_F(SkinFolderTest, TheFolderOfSkinsUnderEitherName) {
  const ProgramFolder program{root.path()};
  QDir().mkpath(at("Skins/amber"));
  EXPECT_EQ(SkinsRoot(program).skins(), (QStringList{"amber", "Blue"}));
  ASSERT_TRUE(QDir(root.path()).rename("Skins", "skins"));
  EXPECT_EQ(SkinsRoot(program).path(), at("skins"));
  EXPECT_TRUE(blue().exists());
}

TEST_F(SkinFolderTest, CoverFilesByNameWithoutRegardToCase) {
  for (const char* name : {"Skins/Blue/b.cov", "Skins/Blue/A.COV", "Skins/Blue/c.cov.txt"})
    test::writeBytes(at(name), "x");
  EXPECT_EQ(blue().coverFiles(), (QStringList{"A.COV", "b.cov"}));
}

TEST(BareFileName, EitherSlashSeparates) {
  EXPECT_EQ(bareFileName("/skins/a\\b.bmp"), u"b.bmp");
  EXPECT_EQ(bareFileName("C:\\skins\\x/b.bmp"), u"b.bmp");
  EXPECT_EQ(bareFileName("b.bmp"), u"b.bmp");
}

TEST(PixelsToTwips, EachDirectionHasItsResolution) {
  Screen screen;
  screen.dpiY = 120;
  EXPECT_EQ(PixelsToTwips(screen, 1024, Axis::X), 15360);
  EXPECT_EQ(PixelsToTwips(screen, 1024, Axis::Y), 12288);
  EXPECT_EQ(PixelsToTwips(screen, -1e12, Axis::X), std::nullopt);
}
