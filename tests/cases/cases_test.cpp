// Whole behaviours, each a folder beside this file that is named for it:
//
//     skin.txt        the Skin "S", see caseskin.h; further ones are other-NAME.txt. Without it: an empty one
//     script.txt      what the operator does after the load; may be missing
//     expected.json   the entries of the state that the case is about, as a dump writes them
//     expected/       files of the Skin's folder as they are afterwards
//     error.txt       what the run ends with instead, as it stands on standard error
//
// A failure leaves what was produced under build/*/cases and says how to see the difference.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "cases/caseskin.h"
#include "skintool/batch.h"

namespace veneerer::test {
namespace {

const QString kCases = QStringLiteral(VENEERER_SOURCE_DIR "/tests/cases/");

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(bytes);
}

QByteArray drained(std::FILE* file) {
  std::rewind(file);
  QFile reader;
  const QByteArray bytes = reader.open(file, QIODevice::ReadOnly) ? reader.readAll() : QByteArray();
  std::fclose(file);
  return bytes;
}

/// What of the state stands under the names that are expected; what isn't there stays away.
QJsonObject likeExpected(const QJsonObject& state, const QJsonObject& expected) {
  QJsonObject same;
  for (auto it = expected.begin(); it != expected.end(); ++it)
    if (state.contains(it.key()))
      same.insert(it.key(), it->isObject() ? likeExpected(state[it.key()].toObject(), it->toObject())
                                           : state[it.key()]);
  return same;
}

class Case : public testing::TestWithParam<std::string> {
protected:
  void SetUp() override {
    addSkin(QStringLiteral("skin.txt"), QStringLiteral("S"));
    for (const QString& file : QDir(folder).entryList({QStringLiteral("other-*.txt")}))
      addSkin(file, file.mid(6).chopped(4));
  }

  void addSkin(const QString& file, const QString& name) {
    const QString path = root.path() + QStringLiteral("/Skins/") + name;
    QDir().mkpath(path);
    makeCaseSkin(QString::fromUtf8(contents(folder + file)), path);
  }

  void run() {
    QStringList words{QStringLiteral("skintool"), QStringLiteral("dump"), skin};
    const QString script = folder + QStringLiteral("script.txt");
    if (QFile::exists(script)) words << QStringLiteral("--script") << script;
    std::FILE* out = std::tmpfile();
    std::FILE* err = std::tmpfile();
    status = runBatch(words, out, err);
    state = QJsonDocument::fromJson(withoutFolders(drained(out))).object();
    error = withoutFolders(drained(err));
  }

  /// Paths count from the folder that holds "Skins".
  QByteArray withoutFolders(QByteArray text) const {
    return text.replace(root.path().toUtf8() + '/', "").replace(folder.toUtf8(), "");
  }

  void expectSame(const QString& name, const QByteArray& produced) {
    const QByteArray expected = contents(folder + name);
    if (produced == expected) return;
    const QString left = QStringLiteral(VENEERER_BINARY_DIR "/cases/") + QDir(folder).dirName() + u'/' + name;
    write(left, produced);
    ADD_FAILURE() << "see: diff -u " << (folder + name).toStdString() << ' ' << left.toStdString();
  }

  const QString folder = kCases + QString::fromStdString(GetParam()) + u'/';
  QTemporaryDir root;
  const QString skin = root.path() + QStringLiteral("/Skins/S");
  int status = -1;
  QJsonObject state;
  QByteArray error;
};

TEST_P(Case, IsAsExpected) {
  run();
  const QString fault = QStringLiteral("error.txt");
  ASSERT_EQ(status, QFile::exists(folder + fault) ? 1 : 0) << error.toStdString();
  if (status == 1) return expectSame(fault, error);

  const QString json = QStringLiteral("expected.json");
  const QStringList files = QDir(folder + QStringLiteral("expected")).entryList(QDir::Files);
  ASSERT_TRUE(QFile::exists(folder + json) || !files.isEmpty()) << "the case expects nothing";
  if (QFile::exists(folder + json)) {
    const auto expected = QJsonDocument::fromJson(contents(folder + json));
    ASSERT_FALSE(expected.object().isEmpty()) << "expected.json can't be read";
    const QJsonObject like = likeExpected(state, expected.object());
    if (like != expected.object()) expectSame(json, QJsonDocument(like).toJson());
  }
  for (const QString& name : files)
    expectSame(QStringLiteral("expected/") + name, contents(skin + u'/' + name));
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
