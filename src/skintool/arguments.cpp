#include "skintool/arguments.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <algorithm>
#include <map>

#include "canvas/screens.h"

namespace veneerer {

namespace {

const std::map<QString, Command> kCommands = {{QStringLiteral("dump"), Command::Dump},
                                              {QStringLiteral("save"), Command::Save},
                                              {QStringLiteral("render"), Command::Render},
                                              {QStringLiteral("check"), Command::Check},
                                              {QStringLiteral("sheet"), Command::Sheet}};

struct Option {
  const char* name;
  const char* value;  ///< null for a switch
  std::initializer_list<Command> commands;
};

const Option kOptions[] = {
    {"to", "FOLDER", {Command::Save, Command::Render, Command::Sheet}},
    {"cover", "NAME", {Command::Save}},
    {"only", "ENTRY", {Command::Render}},
    {"script", "FILE", {Command::Dump, Command::Save, Command::Render}},
    {"reload", nullptr, {Command::Dump, Command::Save, Command::Render}},
    {"screen", "WIDTHxHEIGHT", {Command::Dump, Command::Save, Command::Render}},
    {"dpi", "N", {Command::Dump, Command::Save, Command::Render}},
};

void addOptions(QCommandLineParser& parser) {
  for (const Option& option : kOptions) {
    const QString name = QString::fromLatin1(option.name);
    if (option.value)
      parser.addOption({name, name, QString::fromLatin1(option.value)});
    else
      parser.addOption({name, name});
  }
}

void refuseForeignOptions(const QCommandLineParser& parser, Command command) {
  for (const Option& option : kOptions) {
    const QString name = QString::fromLatin1(option.name);
    if (parser.isSet(name) && std::ranges::find(option.commands, command) == option.commands.end())
      throw UsageError(QStringLiteral("--%1 doesn't go with this command").arg(name));
  }
}

int positive(const QString& text, const QString& option, int most) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  if (!isNumber || number < 1 || number > most)
    throw UsageError(QStringLiteral("--%1 takes numbers from 1 to %2").arg(option).arg(most));
  return number;
}

Screen parseScreen(const QCommandLineParser& parser) {
  Screen screen;
  if (parser.isSet(QStringLiteral("screen"))) {
    const QStringList sides = parser.value(QStringLiteral("screen")).split(u'x');
    if (sides.size() != 2) throw UsageError(QStringLiteral("--screen takes WIDTHxHEIGHT in pixels"));
    screen.width = positive(sides[0], QStringLiteral("screen"), 32767);
    screen.height = positive(sides[1], QStringLiteral("screen"), 32767);
  }
  if (parser.isSet(QStringLiteral("dpi")))
    screen.dpiX = screen.dpiY = positive(parser.value(QStringLiteral("dpi")), QStringLiteral("dpi"), 2400);
  return screen;
}

void checkSkins(const Arguments& arguments) {
  const qsizetype count = arguments.skins.size();
  const bool isRight = arguments.command == Command::Sheet   ? count == 0
                       : arguments.command == Command::Check ? count > 0
                                                             : count == 1;
  if (!isRight) throw UsageError(QStringLiteral("the command takes another number of Skins"));
  for (const QString& skin : arguments.skins)
    if (!QFileInfo(skin).isDir()) throw UsageError(QStringLiteral("%1 is no folder").arg(skin));
}

void checkCover(const QCommandLineParser& parser, const QString& name) {
  if (!parser.isSet(QStringLiteral("cover"))) return;
  if (name.isEmpty() || name.contains(u'/') || name.contains(u'\\'))
    throw UsageError(QStringLiteral("--cover takes a plain file name"));
}

void checkEntries(const QStringList& entries) {
  for (const QString& entry : entries)
    if (std::ranges::find(kScreenEntries, entry.toStdU16String()) == kScreenEntries.end())
      throw UsageError(QStringLiteral("there is no Edit Section entry \"%1\"").arg(entry));
}

}  // namespace

Arguments parseArguments(const QStringList& words) {
  QCommandLineParser parser;
  addOptions(parser);
  if (!parser.parse(words)) throw UsageError(parser.errorText());
  QStringList positional = parser.positionalArguments();
  if (positional.isEmpty()) throw UsageError(QStringLiteral("a command is missing"));
  const auto command = kCommands.find(positional.takeFirst());
  if (command == kCommands.end()) throw UsageError(QStringLiteral("there is no such command"));
  refuseForeignOptions(parser, command->second);

  Arguments arguments;
  arguments.command = command->second;
  arguments.skins = positional;
  arguments.to = parser.value(QStringLiteral("to"));
  arguments.cover = parser.value(QStringLiteral("cover"));
  arguments.only = parser.values(QStringLiteral("only"));
  arguments.script = parser.value(QStringLiteral("script"));
  arguments.reload = parser.isSet(QStringLiteral("reload"));
  arguments.screen = parseScreen(parser);
  checkSkins(arguments);
  checkEntries(arguments.only);
  checkCover(parser, arguments.cover);
  const bool needsTarget = arguments.command == Command::Save || arguments.command == Command::Render ||
                           arguments.command == Command::Sheet;
  if (needsTarget && arguments.to.isEmpty()) throw UsageError(QStringLiteral("--to is missing"));
  return arguments;
}

QString usageText() {
  return QStringLiteral(
      "usage: skintool dump SKIN [options]\n"
      "       skintool save SKIN --to FOLDER [--cover NAME] [options]\n"
      "       skintool render SKIN --to FOLDER [--only ENTRY]... [options]\n"
      "       skintool check SKIN...\n"
      "       skintool sheet --to FILE\n"
      "options: --script FILE  --reload  --screen WIDTHxHEIGHT  --dpi N\n");
}

}  // namespace veneerer
