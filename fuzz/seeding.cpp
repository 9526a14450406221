// Prepares a fuzzer's run: fuzz_seeds TARGET FOLDER writes its seeds and its kept cases into that folder, one
// file each, and its words beside it as FOLDER.dict, and prints how many bytes an input may have. Without
// arguments it names the targets, one a line.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>

#include "fuzz/corpus.h"
#include "fuzz/target.h"

namespace veneerer::fuzz {
namespace {

bool write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// In libFuzzer's form: a word in quotes, what isn't plain as \xNN.
QByteArray dictionaryOf(const QList<QByteArray>& words) {
  QByteArray lines;
  for (const QByteArray& word : words) {
    lines += '"';
    for (const char c : word) {
      const bool isPlain = c > ' ' && c < '\x7F' && c != '"' && c != '\\';
      lines += isPlain ? QByteArray(1, c) : "\\x" + QByteArray(1, c).toHex().toUpper();
    }
    lines += "\"\n";
  }
  return lines;
}

int prepare(const Target& target, const QString& folder) {
  bool isDone =
      QDir().mkpath(folder) && write(folder + QStringLiteral(".dict"), dictionaryOf(target.words()));
  int number = 0;
  for (const QByteArray& input : target.seeds() + keptInputs(target).values()) {
    const QString name = QStringLiteral("%1/%2").arg(folder).arg(number++, 4, 10, QChar(u'0'));
    isDone = isDone && write(name, input.left(target.mostBytes));
  }
  std::printf("%d\n", target.mostBytes);
  return isDone ? 0 : 1;
}

}  // namespace
}  // namespace veneerer::fuzz

int main(int argc, char** argv) {
  using namespace veneerer::fuzz;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc == 3)
    if (const Target* target = findTarget(argv[1])) return prepare(*target, QString::fromLocal8Bit(argv[2]));
  for (const Target& target : targets()) std::printf("%s\n", target.name);
  return argc == 1 ? 0 : 2;
}
