// A world that doesn't keep still and isn't roomy: a disk that fills, files that change between the look and
// the read, names in all scripts, folders of ten thousand files, paths as long as they can be.
#include <functional>

#include "designer/skinfixture.h"
#include "exchange/skincopy.h"
#include "exchange/skinpacking.h"
#include "exchange/skinunpacking.h"
#include "records/recorderror.h"
#include "support/fulldisk.h"

namespace veneerer {
namespace {

using test::Files;

class Adversity : public test::SkinFixture {
protected:
  Adversity() {
    write("images/a.bin", QByteArray(50'000, 'a'));
    write("images/b.bin", QByteArray(50'000, 'b'));
    QDir().mkpath(made({}));
    start();
  }
  QString made(const QString& name) const { return root.filePath("made/" + name); }
  Files all() const { return test::filesBelow(root.path()); }

  void save() { designer->saveTo(SkinFolder(path({}))); }
  void copy(const GoOn& goOn = {}) { copySkin(state(), world.disk, path({}), made("Copy"), goOn); }
  void pack(const GoOn& goOn = {}) { packSkin(world.disk, path({}), made("S.zip"), goOn); }
  void unpack() { unpackSkin(world.disk, root.filePath("S.zip"), made("Skins")); }

  static bool fails(const std::function<void()>& work) {
    try {
      work();
      return false;
    } catch (const RecordError&) {
    } catch (const ExchangeError&) {
    }
    return true;
  }
};

TEST_F(Adversity, ADiskThatFillsSpoilsNothingAndLeavesNothing) {
  save();
  packSkin(world.disk, path({}), root.filePath("S.zip"));
  for (Family* family : form1().families())
    for (Element* element : family->members()) element->setLeft(element->left() + 15);
  const Files before = all();
  const std::function<void()> works[] = {[&] { save(); }, [&] { copy(); }, [&] { pack(); },
                                         [&] { unpack(); }};
  for (const auto& work : works)
    for (const rlim_t bytes : {0, 1, 700, 8000}) {
      {
        const test::FullDisk full(bytes);
        EXPECT_TRUE(fails(work)) << bytes;
      }
      EXPECT_TRUE(all() == before) << bytes;
    }
  for (const auto& work : works) EXPECT_FALSE(fails(work));
}

TEST_F(Adversity, AFileThatChangesBehindTheLookIsToldAndNothingIsLeft) {
  const auto during = [&](const std::function<void()>& change) {
    return [change](int done, int, const QString&) {
      if (done == 0) change();
      return true;
    };
  };
  const std::function<void()> changes[] = {
      [&] { QFile::remove(path("images/b.bin")); },
      [&] { write("images/b.bin", QByteArray(5'000'000, 'c')); },
      [&] { QDir(path("images")).removeRecursively(); },
      [&] {
        QFile::remove(path("images/b.bin"));
        QFile::link("/dev/zero", path("images/b.bin"));
      },
  };
  for (const auto& change : changes) {
    EXPECT_TRUE(fails([&] { copy(during(change)); }));
    write("images/a.bin", "a");
    QFile::remove(path("images/b.bin"));
    write("images/b.bin", "b");
    EXPECT_TRUE(fails([&] { pack(during(change)); }));
    QFile::remove(path("images/b.bin"));
    write("images/b.bin", "b");
    EXPECT_TRUE(test::filesBelow(made({})).isEmpty());
  }
}

TEST_F(Adversity, NamesInEveryScriptGoThroughASaveACopyAndAnArchive) {
  const char* const names[] = {"Кино", "映画館", "سينما", "עברית", "हिन्दी", "ไทย",       "ქართული", "한국어",
                               "🎵 a🎶", "Zoë",    "Ẓo̤ë",   "ẞß",    "100%s", "a'b $HOME", "-rf",     "#1;&"};
  for (const char* each : names) {
    const QString name = QString::fromUtf8(each);
    const QString folder = root.path() + "/Skins/" + name;
    test::writeBytes(folder + "/images/" + name + ".bin", name.toUtf8());
    designer->openSkin(name);
    EXPECT_EQ(form4().Combo3->text(), name);
    designer->saveTo(designer->skinFolder());
    const Files whole = test::filesBelow(folder);
    EXPECT_EQ(whole.size(), 60) << each;
    copySkin(state(), world.disk, folder, made("Copy"));
    EXPECT_TRUE(test::filesBelow(made("Copy")) == whole) << each;
    packSkin(world.disk, folder, made("a.zip"));
    EXPECT_EQ(unpackSkin(world.disk, made("a.zip"), made("Skins")), name);
    EXPECT_TRUE(test::filesBelow(made("Skins/" + name)) == whole) << each;
    QDir(made({})).removeRecursively();
  }
}

TEST_F(Adversity, AFolderOfTenThousandFilesIsWorkedOnAsAnyOther) {
  constexpr int kMost = 10'000;
  for (int i = 2; i < kMost; ++i) write(QStringLiteral("images/Picture %1.bmp").arg(i), "x");
  EXPECT_EQ(QFileInfo(SkinFolder(path({})).resolve("\\IMAGES\\picture 9876.BMP")).fileName(),
            u"Picture 9876.bmp");
  designer->reload("S");
  pack();
  EXPECT_EQ(unpackSkin(world.disk, made("S.zip"), made("Skins")), "S");
  EXPECT_EQ(QDir(made("Skins/S/images")).entryList(QDir::Files).size(), kMost);
  write("images/one too many", "x");
  EXPECT_TRUE(fails([&] { pack(); })) << "what couldn't be unpacked";
}

TEST_F(Adversity, WherePathsEndASaveIsWholeOrRefused) {
  int saved = 0, refused = 0;
  for (const int length : {3000, 4030, 4050, 4060, 4070, 4076, 4080, 4085, 4090}) {
    QString folder = made("deep");
    while (folder.size() + 101 < length) folder += u'/' + QString(99, u'd');
    folder += u'/' + QString(std::max<qsizetype>(1, length - folder.size() - 1), u'e');
    if (!QDir().mkpath(folder)) continue;
    const bool isRefused = fails([&] { designer->saveTo(SkinFolder(folder)); });
    ++(isRefused ? refused : saved);
    const QStringList files = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    EXPECT_EQ(files.size(), isRefused ? 0 : 59) << length;
  }
  EXPECT_TRUE(saved > 0 && refused > 0) << saved << ' ' << refused;
}

}  // namespace
}  // namespace veneerer
