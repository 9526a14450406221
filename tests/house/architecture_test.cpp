// The house's plan held against the house: the links of the build files, the drawing in the documentation and
// the includes of the sources must tell the same.
#include <gtest/gtest.h>

#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include "support/files.h"

namespace veneerer::test {
namespace {

using Links = QMap<QString, QSet<QString>>;

const QString kRoot = QStringLiteral(VENEERER_SOURCE_DIR "/");

QString text(const QString& name) {
  return bytesOf(kRoot + name);
}

/// By their path below src.
Files sources() {
  return filesBelow(kRoot + "src", {"*.h", "*.cpp"});
}

Links linksOfTheBuild() {
  static const QRegularExpression library(QStringLiteral(R"(veneerer_library\(([a-z]+) ([^)]*)\))"));
  static const QRegularExpression part("veneerer_([a-z]+)");
  Links links;
  for (const auto& found : library.globalMatch(text("src/CMakeLists.txt")))
    for (const auto& name : part.globalMatch(found.captured(2)))
      links[found.captured(1)].insert(name.captured(1));
  return links;
}

Links linksOfTheDrawing() {
  static const QRegularExpression arrow(QStringLiteral(R"(^ *([a-z]+) --> ([a-z]+)$)"),
                                        QRegularExpression::MultilineOption);
  Links links;
  for (const auto& found : arrow.globalMatch(text("docs/architecture.md")))
    links[found.captured(1)].insert(found.captured(2));
  return links;
}

void addReachable(const Links& links, const QString& folder, QSet<QString>& reached) {
  if (reached.contains(folder)) return;
  reached.insert(folder);
  for (const QString& next : links.value(folder)) addReachable(links, next, reached);
}

TEST(Architecture, IsDrawnAsItIsBuilt) {
  const Links built = linksOfTheBuild();
  ASSERT_GT(built.size(), 8);
  EXPECT_EQ(linksOfTheDrawing(), built);
}

// All folders share one include path, so the compiler lets an include point anywhere.
TEST(Architecture, IsWhatTheIncludesFollow) {
  static const QRegularExpression include(QStringLiteral(R"(^#include "([a-z]+)/)"),
                                          QRegularExpression::MultilineOption);
  const Links links = linksOfTheBuild();
  int includes = 0;
  const Files files = sources();
  for (auto file = files.begin(); file != files.end(); ++file) {
    const QString folder = file.key().section('/', 0, 0);
    if (!links.contains(folder) && folder != u"files") continue;
    QSet<QString> reachable;
    addReachable(links, folder, reachable);
    for (const auto& found : include.globalMatch(*file)) {
      EXPECT_TRUE(reachable.contains(found.captured(1)))
          << file.key().toStdString() << " includes from " << found.captured(1).toStdString();
      ++includes;
    }
  }
  EXPECT_GT(includes, 300);
}

// What changes the disk goes through one class, so that a test can let it fail.
TEST(Architecture, ChangesTheDiskInOnePlace) {
  static const QRegularExpression change(QStringLiteral(
      R"(QSaveFile|QTemporaryFile|QImageWriter|ofstream|fopen|mk(path|dir)|rm(path|dir)|removeRecursively)"
      R"(|QFile::(remove|rename|copy|link|set|moveTo)|WriteOnly|ReadWrite|std::(rename|filesystem))"
      R"(|O_(WRONLY|RDWR|CREAT)|::(unlink|rename|truncate|symlink|link|chmod)\w*\()"));
  QStringList found;
  const Files files = sources();
  for (auto file = files.begin(); file != files.end(); ++file)
    if (change.match(*file).hasMatch()) found << file.key();
  // The first one writes into an archive, whose bytes are the disk's to write, the last into memory.
  EXPECT_EQ(found, (QStringList{"exchange/zipwriter.cpp", "files/disk.cpp", "images/pictureencoding.cpp"}));
}

TEST(Architecture, LetsOnlyTheWindowsKnowWidgets) {
  static const QRegularExpression library(QStringLiteral(R"(veneerer_library\(([a-z]+) [^)]*Qt6::Widgets)"));
  QStringList found;
  for (const auto& match : library.globalMatch(text("src/CMakeLists.txt"))) found << match.captured(1);
  EXPECT_EQ(found, QStringList{"ui"});
}

/// What stands in a class at one level, each with the label that it stands under: a statement's first words.
QList<std::pair<QString, QString>> membersOf(const QString& body) {
  static const QRegularExpression label("^(public|protected|private)( slots)?:$|^Q_SIGNALS:$");
  QList<std::pair<QString, QString>> members;
  QString under;
  QString statement;
  qsizetype depth = 0;
  for (QString line : body.split('\n')) {
    line = line.section("//", 0, 0).trimmed();
    if (depth == 0 && label.match(line).hasMatch()) {
      under = line.section(QRegularExpression("[ :]"), 0, 0);
      continue;
    }
    statement += line + ' ';
    depth += line.count('{') - line.count('}');
    if (depth > 0 || !(line.endsWith(';') || line.endsWith('}'))) continue;
    members.append({under, statement.trimmed()});
    statement.clear();
  }
  return members;
}

bool isData(const QString& member) {
  static const QRegularExpression other(
      R"(^(friend|using|enum|class|struct \w+ ?[:{;]|template|static const|Q_))");
  static const QRegularExpression arguments("<[^<>]*>");  // of a template, the innermost
  static const QRegularExpression call(R"(\w\()");
  QString head = member.section('{', 0, 0).section('=', 0, 0);
  while (head.contains(arguments)) head.remove(arguments);
  return !other.match(member).hasMatch() && !call.match(head).hasMatch();
}

// A reader finds what a class offers first and what it is made of last.
TEST(House, OrdersMembersAlike) {
  static const QRegularExpression type(
      "^class (\\w+)[^;{]*\\{\n(.*?)^\\};",
      QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
  const QStringList labels{"", "public", "Q_SIGNALS", "protected", "private"};
  int classes = 0;
  const Files files = sources();
  for (auto file = files.begin(); file != files.end(); ++file)
    for (const auto& found : type.globalMatch(*file)) {
      ++classes;
      const std::string name = (file.key() + ": " + found.captured(1)).toStdString();
      QString under;
      bool hadData = false;
      for (const auto& [label, member] : membersOf(found.captured(2))) {
        const bool isOdd = label == "Q_SIGNALS" || under == "Q_SIGNALS";
        EXPECT_TRUE(isOdd || labels.indexOf(label) >= labels.indexOf(under))
            << name << " goes back to " << label.toStdString();
        under = label;
        if (label != "private") continue;
        EXPECT_FALSE(hadData && !isData(member))
            << name << ": data ahead of " << member.left(60).toStdString();
        hadData = hadData || isData(member);
      }
    }
  EXPECT_GT(classes, 150);
}

}  // namespace
}  // namespace veneerer::test
