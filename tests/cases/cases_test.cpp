// Whole behaviours, each a folder beside this file that is named for it:
//
//     skin.txt        the Skin "S", see caseskin.h; further ones are other-NAME.txt. Without it: an empty one
//     script.txt      what the operator does after the load; may be missing. Paths count from the folder of
//                     "Skins"
//     expected.json   the entries of the state that the case is about, as a dump writes them
//     expected/       files of the Skin's folder as they are afterwards
//     error.txt       what the run ends with instead, as it stands on standard error
//
// A failure leaves what was produced under build/*/cases and says how to see the difference.
#include <gtest/gtest.h>

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include "cases/caseskin.h"
#include "skintool/batchrun.h"
#include "support/files.h"

namespace veneerer::test {
namespace {

const QString kCases = QStringLiteral(VENEERER_SOURCE_DIR "/tests/cases/");

/// What of the state stands under the names that are expected; what isn't there stays away.
QJsonObject likeExpected(const QJsonObject& state, const QJsonObject& expected) {
  QJsonObject same;
  for (auto it = expected.begin(); it != expected.end(); ++it)
    if (state.contains(it.key()))
      same.insert(it.key(), it->isObject() ? likeExpected(state[it.key()].toObject(), it->toObject())
                                           : state[it.key()]);
  return same;
}

class Case : public BatchTest, public testing::WithParamInterface<std::string> {
protected:
  void SetUp() override {
    addSkin("skin.txt", "S");
    for (const QString& file : QDir(folder).entryList({"other-*.txt"})) addSkin(file, file.mid(6).chopped(4));
    QDir::setCurrent(root.path());
  }

  void addSkin(const QString& file, const QString& name) const {
    const QString made = path("Skins/" + name);
    QDir().mkpath(made);
    makeCaseSkin(QString::fromUtf8(bytesOf(folder + file)), made);
  }

  int dump() {
    const QString script = folder + "script.txt";
    QStringList words{"dump", skin()};
    if (QFile::exists(script)) words << "--script" << script;
    const int status = run(words);
    state = QJsonDocument::fromJson(withoutFolders(out)).object();
    error = withoutFolders(err);
    return status;
  }

  /// Paths count from the folder that holds "Skins".
  QByteArray withoutFolders(QByteArray text) const {
    return text.replace(root.path().toUtf8() + '/', "").replace(folder.toUtf8(), "");
  }

  void expectSame(const QString& name, const QByteArray& produced) {
    const QByteArray expected = bytesOf(folder + name);
    if (produced == expected) return;
    const QString left = QStringLiteral(VENEERER_BINARY_DIR "/cases/") + QDir(folder).dirName() + u'/' + name;
    writeBytes(left, produced);
    ADD_FAILURE() << "see: diff -u " << (folder + name).toStdString() << ' ' << left.toStdString();
  }

  const QString folder = kCases + QString::fromStdString(GetParam()) + u'/';
  QJsonObject state;
  QByteArray error;
};

TEST_P(Case, IsAsExpected) {
  const int status = dump();
  const QString fault = "error.txt";
  ASSERT_EQ(status, QFile::exists(folder + fault) ? 1 : 0) << error.toStdString();
  if (status == 1) return expectSame(fault, error);

  const QString json = "expected.json";
  const QStringList files = QDir(folder + "expected").entryList(QDir::Files);
  ASSERT_TRUE(QFile::exists(folder + json) || !files.isEmpty()) << "the case expects nothing";
  if (QFile::exists(folder + json)) {
    const auto expected = QJsonDocument::fromJson(bytesOf(folder + json));
    ASSERT_FALSE(expected.object().isEmpty()) << "expected.json can't be read";
    const QJsonObject like = likeExpected(state, expected.object());
    if (like != expected.object()) expectSame(json, QJsonDocument(like).toJson());
  }
  for (const QString& name : files) expectSame("expected/" + name, bytesOf(skin() + '/' + name));
}

std::vector<std::string> caseNames() {
  std::vector<std::string> names;
  for (const QString& name : QDir(kCases).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
    names.push_back(name.toStdString());
  return names;
}

std::string testName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::ranges::replace(name, '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Folder, Case, testing::ValuesIn(caseNames()), testName);

}  // namespace
}  // namespace veneerer::test
