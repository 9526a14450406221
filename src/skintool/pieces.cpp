#include "skintool/pieces.h"

#include <QFile>
#include <algorithm>

#include "platform/programplace.h"
#include "skintool/output.h"

namespace veneerer {

namespace {

QStringList wordsFor(const QString& skin, const Arguments& arguments) {
  const bool isCheck = arguments.command == Command::Check;
  QStringList words{isCheck ? QStringLiteral("check") : QStringLiteral("render")};
  words += arguments.options;
  if (isCheck)
    words << QStringLiteral("--piece");
  else
    words << QStringLiteral("--to=") + arguments.to + u'/' + skinName(skin);
  // A Skin's name may begin as an option does.
  return words << QStringLiteral("--") << skin;
}

/// A script that comes by standard input is played on each Skin.
QByteArray inputOf(const Arguments& arguments) {
  QFile file;
  const bool isRead = arguments.script == u"-" && file.open(stdin, QIODevice::ReadOnly);
  return isRead ? file.readAll() : QByteArray();
}

/// Each line of a piece of a check begins with a digit that tells how bad it is.
void printByBadness(const QByteArrayList& pieces, std::FILE* out) {
  QByteArrayList lines;
  for (const QByteArray& piece : pieces)
    for (const QByteArray& line : piece.split('\n'))
      if (!line.isEmpty()) lines << line;
  std::ranges::stable_sort(lines, {}, [](const QByteArray& line) { return line.front(); });
  for (const QByteArray& line : lines) put(out, line.sliced(1) + '\n');
  print(out, {});
}

}  // namespace

int runPieces(const Arguments& arguments, const RunCommands& runCommands, std::FILE* out, std::FILE* err) {
  QList<QStringList> commands;
  for (const QString& skin : arguments.skins) commands << wordsFor(skin, arguments);
  int worst = 0;
  QByteArrayList pieces;
  runCommands(commands, inputOf(arguments), [&](const CommandResult& result) {
    worst = std::max(worst, result.status);
    pieces << result.out;
    print(err, result.err);
  });
  if (arguments.command == Command::Check)
    printByBadness(pieces, out);
  else
    print(out, pieces.join());
  return worst;
}

}  // namespace veneerer
