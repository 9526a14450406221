// The command new, and what comes of it.
#include "looks/glimpse.h"
#include "looks/looks.h"
#include "skintool/batchrun.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

class NewCommand : public BatchTest {
protected:
  QString mine() const { return path("Skins/Mine"); }
};

TEST_F(NewCommand, ListsTheLooksAndDrawsOne) {
  EXPECT_EQ(run({"new", "--look", "list"}), 0);
  const QList<QByteArray> names = out.split('\n');
  EXPECT_GE(names.size(), 9);
  EXPECT_EQ(run({"new", mine(), "--look", names[3], "--size", "700x500"}), 0);
  EXPECT_EQ(err, "");
  EXPECT_EQ(run({"check", mine()}), 0);
  EXPECT_EQ(run({"dump", mine()}), 0);
  EXPECT_TRUE(out.contains("\"Text\": \"700\"") && out.contains("\"Text\": \"500\""));
}

TEST_F(NewCommand, TakesColoursAndAFontAndTellsWhatItMoved) {
  EXPECT_EQ(run({"new", mine(), "--look", "paper", "--ground", "#202020", "--text", "#303030", "--accent",
                 "#00ff00", "--font", "Courier New"}),
            0);
  EXPECT_TRUE(err.startsWith("The text colour #303030 becomes #")) << err.toStdString();
  EXPECT_EQ(err.count('\n'), 1);
  EXPECT_TRUE(test::bytesOf(mine() + "/history.ini").contains("Courier New"));
  EXPECT_EQ(run({"check", "--design", mine()}), 0);
  EXPECT_EQ(out, "");
}

TEST_F(NewCommand, RefusesWhatCannotBe) {
  const QStringList wrong[] = {{"new", mine()},
                               {"new", "--look", "Paper"},
                               {"new", mine(), "--look", "Papyrus"},
                               {"new", skin(), "--look", "Paper"},
                               {"new", mine(), "--look", "Paper", "--size", "600x400"},
                               {"new", mine(), "--look", "Paper", "--size", "1024"},
                               {"new", mine(), "--look", "Paper", "--accent", "red"},
                               {"new", mine(), "--look", "Paper", "--font", ""},
                               {"new", mine(), "--look", "Paper", "--to", path("x")}};
  for (const QStringList& words : wrong) {
    EXPECT_EQ(run(words), 2) << words.join(' ').toStdString();
    EXPECT_TRUE(err.startsWith("skintool: ")) << err.toStdString();
  }
  EXPECT_FALSE(QFileInfo::exists(mine()));
}

// A glimpse draws in small what the Skin draws in full. Letters fall otherwise on the pixels; grounds,
// buttons and pictures don't.
TEST_F(NewCommand, AGlimpseShowsWhatComesOfIt) {
  constexpr QSize kCoarse(40, 30);
  const QMap<int, QString> screens{
      {1, "01 History Screen"}, {9, "09 Album View"}, {15, "15 Play Options Screen"}};
  QStringList render{"render", mine(), "--to", path("screens")};
  for (const QString& entry : screens) render << "--only" << entry.mid(3);
  const auto coarse = [&](const QImage& image) {
    return image.scaled(kCoarse, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
  };
  for (const looks::Look* look : looks::allLooks()) {
    ASSERT_EQ(run({"new", mine(), "--look", look->name, "--size", "800x600"}), 0) << err.toStdString();
    ASSERT_EQ(run(render), 0);
    looks::Wish wish = looks::defaultsOf(*look);
    wish.size = {800, 600};
    for (auto screen = screens.begin(); screen != screens.end(); ++screen) {
      const int entry = screen.key();
      const looks::Glimpse glimpse = looks::glimpseOf(wish, {&entry, 1}, QSize(400, 300));
      // The window stands out over the screen a little.
      const QImage drawn = QImage(path("screens/" + *screen + ".png")).copy(0, 0, 800, 600);
      EXPECT_LT(test::largestDifference(coarse(drawn), coarse(glimpse.screens.front())), 95)
          << look->name << ' ' << entry;
    }
    QDir(mine()).removeRecursively();
  }
}

struct Case {
  QByteArray look;
  const char* size;
  QStringList colours;
};

// Every look in the smallest sizes of each shape, once in colours that hardly go together.
std::vector<Case> cases() {
  std::vector<Case> all;
  for (const looks::Look* look : looks::allLooks()) {
    all.push_back({look->name, "640x480", {}});
    all.push_back({look->name, "640x1138", {}});
    all.push_back(
        {look->name, "1120x480", {"--accent", "#e0ff10", "--ground", "#7a7f78", "--text", "#907060"}});
  }
  return all;
}

class EveryLook : public NewCommand, public testing::WithParamInterface<Case> {};

TEST_P(EveryLook, GivesASkinWithoutFaultsThatASaveLeavesAlone) {
  const auto& [look, size, colours] = GetParam();
  ASSERT_EQ(run(QStringList{"new", mine(), "--look", look, "--size", size} + colours), 0)
      << err.toStdString();
  EXPECT_EQ(run({"check", "--design", mine()}), 0);
  EXPECT_EQ(out, "");
  const test::Files made = test::filesBelow(mine());
  EXPECT_EQ(run({"save", mine(), "--to", mine()}), 0);
  EXPECT_EQ(test::filesBelow(mine()), made);
}

std::string nameOf(const testing::TestParamInfo<Case>& made) {
  const QByteArray name = made.param.look + '_' + made.param.size;
  return QString::fromLatin1(name).remove(' ').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Looks, EveryLook, testing::ValuesIn(cases()), nameOf);

}  // namespace
}  // namespace veneerer
