// What fuzzing found once, and what it begins with, played again: a law that doesn't hold ends the program.
#include <gtest/gtest.h>

#include <QDir>

#include "fuzz/corpus.h"
#include "fuzz/target.h"

namespace veneerer::fuzz {
namespace {

class Replay : public testing::TestWithParam<Target> {};

TEST_P(Replay, TakesWhatIsKept) {
  const QMap<QString, QByteArray> inputs = keptInputs(GetParam());
  for (auto input = inputs.begin(); input != inputs.end(); ++input) {
    SCOPED_TRACE(input.key().toStdString());
    EXPECT_FALSE(input->isEmpty()) << "neither an input nor digits";
    EXPECT_LE(input->size(), GetParam().mostBytes);
    GetParam().run(*input);
  }
}

// Some thirty of them, from first to last.
TEST_P(Replay, TakesItsSeeds) {
  const QList<QByteArray> seeds = GetParam().seeds();
  EXPECT_GT(seeds.size(), 5);
  for (qsizetype i = 0; i < seeds.size(); i += 1 + seeds.size() / 30)
    GetParam().run(seeds[i].left(GetParam().mostBytes));
}

INSTANTIATE_TEST_SUITE_P(Fuzz, Replay, testing::ValuesIn(targets().begin(), targets().end()),
                         [](const auto& of) { return std::string(of.param.name); });

TEST(Corpus, HasAFolderForTargetsAlone) {
  const QDir folder(QStringLiteral(VENEERER_SOURCE_DIR "/fuzz/corpus"));
  for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
    EXPECT_NE(findTarget(name.toLatin1()), nullptr) << name.toStdString();
}

}  // namespace
}  // namespace veneerer::fuzz
