#include "skintool/arguments.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <cstdlib>

#include "canvas/screens.h"
#include "looks/looks.h"
#include "looks/plans.h"
#include "platform/program.h"
#include "platform/programplace.h"
#include "problems/hints.h"
#include "records/coverfile.h"

namespace veneerer {

namespace {

QString nameOf(const OptionEntry& option) {
  return QString::fromLatin1(option.name);
}

void addOptions(QCommandLineParser& parser) {
  for (const OptionEntry& option : commandOptions())
    parser.addOption(
        {nameOf(option), QString(), option.value ? QString::fromLatin1(option.value) : QString()});
}

void refuseForeignOptions(const QCommandLineParser& parser, const CommandEntry& command) {
  for (const OptionEntry& option : commandOptions())
    if (parser.isSet(nameOf(option)) && !takesOption(command.command, option))
      throw UsageError(
          QStringLiteral("--%1 doesn't go with %2").arg(nameOf(option), QString::fromLatin1(command.name)));
}

const CommandEntry& commandNamed(const QString& name) {
  const CommandEntry* found = findCommand(name);
  if (!found) throw UsageError(QStringLiteral("there is no command \"%1\"").arg(name));
  return *found;
}

int positive(const QString& text, const QString& option, int most) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  // Signs, blanks and leading zeros are slips rather than numbers here.
  const bool isPlain = isNumber && text == QString::number(number);
  if (!isPlain || number < 1 || number > most)
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

int parseTouch(const QCommandLineParser& parser) {
  const QString name = QStringLiteral("touch");
  if (!parser.isSet(name)) return kTouchPixels;
  if (!parser.isSet(QStringLiteral("design"))) throw UsageError(QStringLiteral("--touch goes with --design"));
  return positive(parser.value(name), name, 32767);
}

/// 0 where the option isn't given.
int parseTurn(const QCommandLineParser& parser, const QString& name, int most) {
  if (!parser.isSet(name)) return 0;
  bool isNumber = false;
  const int number = parser.value(name).toInt(&isNumber);
  if (!isNumber || std::abs(number) > most)
    throw UsageError(QStringLiteral("--%1 takes numbers from -%2 to %2").arg(name).arg(most));
  return number;
}

void addReplacement(ColourMap& map, const QString& text) {
  const QStringList colours = text.split(u'=');
  const auto isColour = [](const QString& word) {
    return word.size() == 7 && word.startsWith(u'#') && QColor::isValidColor(word);
  };
  if (colours.size() != 2 || !std::ranges::all_of(colours, isColour))
    throw UsageError(QStringLiteral("--replace takes #RRGGBB=#RRGGBB, not \"%1\"").arg(text));
  const Colour from = Colour::of(QColor(colours[0]));
  if (map.replaced.contains(from.number()))
    throw UsageError(QStringLiteral("--replace names %1 twice").arg(colours[0]));
  map.replaced.insert(from.number(), Colour::of(QColor(colours[1])));
}

Recolouring parseRecolouring(const QCommandLineParser& parser) {
  Recolouring recolouring;
  recolouring.map.turn = {parseTurn(parser, QStringLiteral("hue"), 360),
                          parseTurn(parser, QStringLiteral("saturation"), 100),
                          parseTurn(parser, QStringLiteral("lightness"), 100)};
  for (const QString& text : parser.values(QStringLiteral("replace"))) addReplacement(recolouring.map, text);
  recolouring.withPictures = parser.isSet(QStringLiteral("pictures"));
  return recolouring;
}

void checkSkins(const CommandEntry& command, const QStringList& skins) {
  if (skins.size() < command.fewestSkins || skins.size() > command.mostSkins) {
    const QString count = command.mostSkins == 0   ? QStringLiteral("no Skin")
                          : command.mostSkins == 1 ? QStringLiteral("one Skin")
                          : command.mostSkins == 2 ? QStringLiteral("one or two Skins")
                                                   : QStringLiteral("at least one Skin");
    throw UsageError(QStringLiteral("%1 takes %2").arg(QString::fromLatin1(command.name), count));
  }
  for (const QString& skin : skins)
    if (!QFileInfo(skin).isDir()) throw UsageError(QStringLiteral("\"%1\" is no folder").arg(skin));
}

QString checkedArchive(const QStringList& operands) {
  if (operands.size() != 1) throw UsageError(QStringLiteral("unpack takes one archive"));
  if (!QFileInfo(operands.first()).isFile())
    throw UsageError(QStringLiteral("\"%1\" is no file").arg(operands.first()));
  return operands.first();
}

QColor parseColour(const QCommandLineParser& parser, const char* name, const QColor& usual) {
  const QString option = QString::fromLatin1(name);
  if (!parser.isSet(option)) return usual;
  static const QRegularExpression form(QStringLiteral("^#[0-9A-Fa-f]{6}$"));
  const QString value = parser.value(option);
  if (!form.match(value).hasMatch()) throw UsageError(QStringLiteral("--%1 takes #RRGGBB").arg(option));
  return QColor(value);
}

QSize parseSize(const QCommandLineParser& parser, QSize usual) {
  const QString name = QStringLiteral("size");
  if (!parser.isSet(name)) return usual;
  const QStringList sides = parser.value(name).split(u'x');
  if (sides.size() != 2) throw UsageError(QStringLiteral("--size takes WIDTHxHEIGHT in pixels"));
  const QSize size(positive(sides[0], name, 32767), positive(sides[1], name, 32767));
  if (const QString fault = looks::faultOfSize(size); !fault.isEmpty()) throw UsageError(fault);
  return size;
}

QString parseFont(const QCommandLineParser& parser, const QString& usual) {
  const QString name = QStringLiteral("font");
  if (!parser.isSet(name)) return usual;
  const QString font = parser.value(name).trimmed();
  if (font.isEmpty()) throw UsageError(QStringLiteral("--font takes the name of a font"));
  return font;
}

looks::Wish parseWish(const QCommandLineParser& parser) {
  const QString name = parser.value(QStringLiteral("look"));
  if (name.isEmpty()) throw UsageError(QStringLiteral("--look is missing"));
  const looks::Look* look = looks::findLook(name);
  if (!look) throw UsageError(QStringLiteral("there is no look \"%1\"").arg(name));
  looks::Wish wish = looks::defaultsOf(*look);
  wish.size = parseSize(parser, wish.size);
  wish.colours.accent = parseColour(parser, "accent", wish.colours.accent);
  wish.colours.ground = parseColour(parser, "ground", wish.colours.ground);
  wish.colours.text = parseColour(parser, "text", wish.colours.text);
  wish.font = parseFont(parser, wish.font);
  return wish;
}

/// The folder of the command new; none where the looks are only to be listed.
void readNew(const QCommandLineParser& parser, const QStringList& operands, Arguments& arguments) {
  const bool isList = parser.value(QStringLiteral("look")) == u"list";
  if (operands.size() > 1 || (operands.isEmpty() && !isList))
    throw UsageError(QStringLiteral("new takes one folder"));
  if (isList) return;
  arguments.wish = parseWish(parser);
  arguments.to = operands.first();
  if (QFileInfo::exists(arguments.to) || QFileInfo(arguments.to).isSymLink())
    throw UsageError(QStringLiteral("\"%1\" is there already").arg(arguments.to));
}

void checkTarget(const CommandEntry& command, const QString& to) {
  if (command.needsTarget && to.isEmpty()) throw UsageError(QStringLiteral("--to is missing"));
  const bool isNew = command.command == Command::Copy || command.command == Command::Recolour;
  if (isNew && (QFileInfo::exists(to) || QFileInfo(to).isSymLink()))
    throw UsageError(QStringLiteral("\"%1\" is there already").arg(to));
}

// Two Skins are compared as they lie on the disk.
void refuseLoadOfTwo(const Arguments& arguments) {
  if (arguments.command != Command::Diff || arguments.skins.size() < 2) return;
  if (!arguments.script.isEmpty() || arguments.reload)
    throw UsageError(QStringLiteral("--script and --reload don't go with two Skins"));
}

void checkCover(const QCommandLineParser& parser, const QString& name) {
  if (!parser.isSet(QStringLiteral("cover"))) return;
  if (coverFileName(name).isEmpty())
    throw UsageError(QStringLiteral("--cover takes a plain file name that ends in .cov"));
}

void checkEntries(const QStringList& entries) {
  for (const QString& entry : entries)
    if (std::ranges::find(kScreenEntries, entry.toStdU16String()) == kScreenEntries.end())
      throw UsageError(QStringLiteral("there is no Edit Section entry \"%1\"").arg(entry));
}

/// What --help or --version asks for, empty when neither is set.
QString answerTo(const QCommandLineParser& parser) {
  const QStringList operands = parser.positionalArguments();
  if (parser.isSet(QStringLiteral("version"))) return QStringLiteral("skintool %1\n").arg(programVersion());
  if (!parser.isSet(QStringLiteral("help"))) return {};
  return operands.isEmpty() ? usageText() : helpText(commandNamed(operands.first()));
}

QStringList givenOptions(const QCommandLineParser& parser) {
  QStringList options;
  for (const OptionEntry& option : commandOptions()) {
    const QString name = nameOf(option);
    if (name == u"to" || !parser.isSet(name)) continue;
    if (!option.value) options << QStringLiteral("--") + name;
    for (const QString& value : parser.values(name)) options << QStringLiteral("--") + name + u'=' + value;
  }
  return options;
}

// Each Skin's screens go into a folder of its name.
void refuseSameNames(const Arguments& arguments) {
  if (arguments.command != Command::Render) return;
  QSet<QString> names;
  for (const QString& skin : arguments.skins) {
    const QString name = skinName(skin);
    if (names.contains(name)) throw UsageError(QStringLiteral("two Skins bear the name \"%1\"").arg(name));
    names.insert(name);
  }
}

Arguments readOptions(const QCommandLineParser& parser) {
  Arguments arguments;
  arguments.options = givenOptions(parser);
  arguments.isPiece = parser.isSet(QStringLiteral("piece"));
  arguments.to = parser.value(QStringLiteral("to"));
  arguments.cover = parser.value(QStringLiteral("cover"));
  arguments.only = parser.values(QStringLiteral("only"));
  arguments.script = parser.value(QStringLiteral("script"));
  arguments.reload = parser.isSet(QStringLiteral("reload"));
  arguments.screen = parseScreen(parser);
  arguments.design = parser.isSet(QStringLiteral("design"));
  arguments.touch = parseTouch(parser);
  arguments.recolouring = parseRecolouring(parser);
  checkEntries(arguments.only);
  checkCover(parser, arguments.cover);
  if (parser.isSet(QStringLiteral("script")) && arguments.script.isEmpty())
    throw UsageError(QStringLiteral("--script takes the name of a file"));
  return arguments;
}

}  // namespace

Arguments parseArguments(const QStringList& words) {
  QCommandLineParser parser;
  addOptions(parser);
  if (!parser.parse(words)) throw UsageError(parser.errorText());
  Arguments arguments;
  arguments.answer = answerTo(parser);
  if (!arguments.answer.isEmpty()) return arguments;
  QStringList operands = parser.positionalArguments();
  if (operands.isEmpty()) throw UsageError(QStringLiteral("a command is missing"));
  const CommandEntry& command = commandNamed(operands.takeFirst());
  refuseForeignOptions(parser, command);
  if (!command.takesArchive && !command.takesFolder) checkSkins(command, operands);

  arguments = readOptions(parser);
  arguments.command = command.command;
  if (command.takesFolder)
    readNew(parser, operands, arguments);
  else if (command.takesArchive)
    arguments.archive = checkedArchive(operands);
  else
    arguments.skins = operands;
  checkTarget(command, arguments.to);
  refuseLoadOfTwo(arguments);
  refuseSameNames(arguments);
  return arguments;
}

}  // namespace veneerer
