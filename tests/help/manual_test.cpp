// The manual: all of it can be reached, nothing leads nowhere, and a search finds.
#include "help/manual.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include "support/files.h"
#include "support/translated.h"

namespace veneerer {
namespace {

const QString kFolder = QStringLiteral(":/manual");

QStringList pages() {
  QStringList names = QDir(kFolder).entryList({"*.md"}, QDir::Files);
  for (QString& name : names) name.chop(3);
  names.sort();
  return names;
}

/// What its links and pictures lead to.
QStringList targetsOf(const QString& markdown) {
  static const QRegularExpression link(QStringLiteral(R"(\]\(([^)]+)\))"));
  static const QRegularExpression code(QStringLiteral("`[^`\n]*`"));
  QStringList targets;
  for (const auto& found : link.globalMatch(QString(markdown).remove(code)))
    targets.append(found.captured(1));
  return targets;
}

TEST(ManualPages, StandInTheContentsOnceEach) {
  QStringList listed{kManualIndex};
  const Manual manual;
  for (const ManualEntry& entry : manual.contents()) {
    listed.append(entry.page);
    EXPECT_FALSE(entry.group.isEmpty()) << entry.page.toStdString();
  }
  listed.sort();
  EXPECT_EQ(listed.join('\n').toStdString(), pages().join('\n').toStdString());
  EXPECT_GT(listed.size(), 30);
}

TEST(ManualPages, BeginWithTheTitleThatTheContentsGive) {
  const Manual manual;
  for (const ManualEntry& entry : manual.contents())
    EXPECT_EQ(manual.text(entry.page).section('\n', 0, 0).toStdString(), "# " + entry.title.toStdString());
}

TEST(ManualPages, LeadToPagesAndPicturesThatAreThere) {
  QSet<QString> shown;
  for (const QString& page : pages())
    for (const QString& target : targetsOf(Manual().text(page))) {
      EXPECT_TRUE(QFile::exists(kFolder + '/' + target))
          << page.toStdString() << " leads to " << target.toStdString();
      shown.insert(target);
    }
  for (const QString& picture : QDir(kFolder + "/images").entryList(QDir::Files))
    EXPECT_TRUE(shown.contains("images/" + picture)) << "no page shows " << picture.toStdString();
}

// They are part of the program, and looked at on small screens.
TEST(ManualPages, HavePicturesOfModerateSize) {
  qint64 all = 0;
  for (const QFileInfo& picture : QDir(kFolder + "/images").entryInfoList(QDir::Files)) {
    EXPECT_LT(picture.size(), 150 * 1024) << picture.fileName().toStdString();
    EXPECT_FALSE(QImage(picture.filePath()).isNull()) << picture.fileName().toStdString();
    all += picture.size();
  }
  EXPECT_LT(all, 3 * 1024 * 1024);
}

class ManualSearch : public testing::Test {
protected:
  ManualSearch() {
    write("index",
          "# M\n\n## One\n\n- [Covers](covers.md): all of them\n- [Saving](saving.md): how\n\n## Two\n\n- "
          "[Keys](keys.md)\n");
    write("covers", "# Covers\n\nA cover is **saved** whole. Then a [key](keys.md) is pressed.\n");
    write("saving", "# Saving\n\nSaved covers: covers and covers.\n");
    write("keys", "# Keys\n\n" + QByteArray("word ").repeated(60) + "the needle of it " +
                      QByteArray("more ").repeated(60));
  }
  void write(const QString& page, const QByteArray& text) {
    test::writeBytes(folder.filePath(page + ".md"), text);
  }
  std::string found(const QString& words) {
    QStringList pages;
    for (const ManualHit& hit : Manual(folder.path()).search(words)) pages.append(hit.page);
    return pages.join(' ').toStdString();
  }

  QTemporaryDir folder;
};

TEST_F(ManualSearch, FindsPagesThatHaveAllWordsTitlesFirst) {
  EXPECT_EQ(found("covers"), "covers saving") << "a title counts more than many finds";
  EXPECT_EQ(found("COVER saved"), "covers saving");
  EXPECT_EQ(found("saved pressed"), "covers");
  EXPECT_EQ(found("keys.md"), "") << "what a link leads to isn't read";
  EXPECT_EQ(found("saved nowhere"), "");
  EXPECT_EQ(found("  "), "");
}

TEST_F(ManualSearch, ShowsOneLineAroundTheFirstFind) {
  const QList<ManualHit> hits = Manual(folder.path()).search("needle");
  ASSERT_EQ(hits.size(), 1);
  const QString excerpt = hits[0].excerpt;
  EXPECT_TRUE(excerpt.startsWith("... word ") && excerpt.endsWith("more ...")) << excerpt.toStdString();
  EXPECT_TRUE(excerpt.contains("the needle of it"));
  EXPECT_LT(excerpt.size(), 140);
}

TEST_F(ManualSearch, NamesPagesAsTheContentsDo) {
  const Manual manual(folder.path());
  EXPECT_EQ(manual.title("keys"), "Keys");
  EXPECT_EQ(manual.title("index"), "Contents");
  EXPECT_EQ(manual.contents()[2].group, "Two");
  EXPECT_EQ(manual.text("nowhere"), "");
}

TEST_F(ManualSearch, TakesWhatThereIsInTheLanguageOfTheTexts) {
  test::writeBytes(folder.filePath("de/keys.md"), "# Tasten\n\nNadel\n");
  EXPECT_EQ(Manual(folder.path()).search("Nadel").size(), 0);
  const test::Translated german({{"en", "de"}});
  Manual manual(folder.path());
  EXPECT_TRUE(manual.text("keys").startsWith("# Tasten"));
  EXPECT_EQ(manual.search("Nadel").size(), 1);
  EXPECT_EQ(manual.search("whole").size(), 1) << "all other pages stay English";
}

}  // namespace
}  // namespace veneerer
