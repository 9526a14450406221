// Archives from a stranger, unpacked.
#include "exchange/archives.h"

#include <QTemporaryDir>

#include "elements/require.h"
#include "exchange/skinunpacking.h"
#include "fuzz/guardeddisk.h"
#include "fuzz/target.h"
#include "support/files.h"

namespace veneerer::fuzz {

namespace {

constexpr ExchangeLimits kLimits = {20, 256 * 1024};

QStringList namesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
}

void holdsOneSkin(const QString& root, const QString& name) {
  require(namesIn(root) == QStringList{name}, "an archive becomes the one Skin that is told");
  const test::Files files = test::filesBelow(root);
  require(files.size() <= kLimits.files, "no more is unpacked than may be");
  qint64 bytes = 0;
  for (const QByteArray& file : files) bytes += file.size();
  require(bytes <= kLimits.bytes, "no more bytes are unpacked than may be");
}

void run(const QByteArray& input) {
  static const QTemporaryDir folder;
  const QString archive = folder.filePath(QStringLiteral("a.zip"));
  const QString root = folder.filePath(QStringLiteral("Skins"));
  test::writeBytes(archive, input);
  GuardedDisk disk(root);
  QDir().mkpath(root);
  try {
    const QString name = unpackSkin(disk, archive, root, {}, kLimits);
    holdsOneSkin(root, name);
    QDir(root).removeRecursively();
  } catch (const ExchangeError&) {
    require(namesIn(root).isEmpty(), "nothing is left of an archive that is refused");
  }
}

QList<QByteArray> seeds() {
  using test::zipOf;
  return {zipOf({{"S/menu.ini", "INI Version\r\n1\r\n"}, {"S/images/", ""}, {"S/images/a.bmp", "BM"}}),
          zipOf({{"S/a", QByteArray(3000, 'x')}}),
          zipOf({{"S/", ""}}),
          zipOf({}),
          zipOf({{"S/../a"}}),
          zipOf({{"/S/a"}}),
          zipOf({{"S/a", "x", 0120777}}),
          zipOf({{"S/a", "x", 0, "secret"}}),
          zipOf({{"S/a"}, {"T/a"}}),
          zipOf({{"S/a"}, {"S/A"}}),
          zipOf({{"S\\a\\b"}, {"S/search_choice.ini"}, {"S/search_Choice.ini"}})};
}

QList<QByteArray> words() {
  return {"PK\1\2",   "PK\3\4", "PK\5\6", "PK\6\6", "PK\6\7",           "PK\7\x8",
          "../",      "..\\",   "S/",     "C:",     "\xFF\xFF\xFF\xFF", QByteArray("\1\0\x10\0", 4),
          "\xFF\xFF", "up"};
}

}  // namespace

const Target kArchives = {"archives", 4096, run, seeds, words};

}  // namespace veneerer::fuzz
