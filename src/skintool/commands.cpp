#include "skintool/commands.h"

#include <QStringList>
#include <algorithm>

namespace veneerer {

namespace {

constexpr int kAnyNumber = 1'000'000;

const CommandEntry kCommands[] = {
    {Command::Dump, "dump", "SKIN [options]",
     "Loads the Skin and prints its state as JSON: the globals, every element with its properties, the\n"
     "tables of image names, the messages and the notes.",
     1, 1, false},
    {Command::Save, "save", "SKIN --to FOLDER [--cover NAME] [options]",
     "Loads the Skin and writes all of its record files into FOLDER, which may be the Skin itself.\n"
     "Nothing is written when the Skin or the script fails.",
     1, 1, true},
    {Command::Render, "render", "SKIN... --to FOLDER [--only ENTRY]... [options]",
     "Loads the Skin and draws every screen of the list of screens into a PNG file of its own, from\n"
     "\"00 Main Screen.png\" to \"31 Pop Up Menu.png\". With several Skins, those of each go into a folder "
     "of\n"
     "its name in FOLDER, and as many Skins as the machine has cores are worked on at once.",
     1, kAnyNumber, true},
    {Command::Check, "check", "SKIN... [options]",
     "Tells what is wrong or risky in each Skin, one finding a line, errors first:\n"
     "FILE:LINE: error: ... or FILE: warning: ... The status is 1 when there is an error. As many Skins as\n"
     "the machine has cores are worked on at once.",
     1, kAnyNumber, false},
    {Command::Sheet, "sheet", "SKIN --to FILE.png [options]",
     "Loads the Skin and draws all of its screens on one page, each above its name.", 1, 1, true},
    {Command::Preview, "preview", "SKIN --to FILE.html [options]",
     "Loads the Skin and writes one web page of all of its screens that needs no other file and no\n"
     "network: the buttons of the menus lead to their screens, and arrow keys leaf through.",
     1, 1, true},
    {Command::Diff, "diff", "SKIN [OTHER] [options]",
     "Tells what a save of the Skin as loaded would change in its own folder; with OTHER, what differs\n"
     "between the two Skins. One difference a line: FILE:LINE: ELEMENT.PROPERTY: OLD -> NEW, FILE: differs "
     "or\n"
     "FILE: only in NAME. The status is 0 when nothing differs, 1 when something does, 2 when the Skin "
     "fails.",
     1, 2, false},
    {Command::Copy, "copy", "SKIN --to FOLDER [options]",
     "Makes a whole new Skin of the Skin as loaded: its record files as a save writes them, every other "
     "file\n"
     "of its folder byte for byte. FOLDER must not be there.",
     1, 1, true},
    {Command::Recolour, "recolour",
     "SKIN --to FOLDER [--hue DEGREES] [--saturation PERCENT] [--lightness PERCENT]\n"
     "                [--replace #RRGGBB=#RRGGBB]... [--pictures] [options]",
     "Makes a whole new Skin of the Skin as loaded in other colours: every colour that its files store, but\n"
     "for system colours, is replaced or turned. FOLDER must not be there.",
     1, 1, true},
    {Command::Pack, "pack", "SKIN --to FILE.zip",
     "Packs the Skin's folder as it is into one zip archive, where it is the only entry at the top.", 1, 1,
     true},
    {Command::Unpack, "unpack", "FILE.zip --to FOLDER",
     "Unpacks one Skin, which becomes a folder in FOLDER. Nothing is written of an archive that holds "
     "anything\n"
     "but the files of one Skin, or one that is there already.",
     0, 0, true, true},
    {Command::New, "new",
     "FOLDER --look NAME [--size WIDTHxHEIGHT] [--accent #RRGGBB] [--ground #RRGGBB] [--text #RRGGBB]\n"
     "       [--font NAME]",
     "Draws a whole new Skin: pictures, record files and cover layouts. FOLDER must not be there; its name\n"
     "is the Skin's. --look list names the looks.",
     0, 0, false, false, true},
    {Command::Buttons, "buttons", "--to FILE.png", "Draws every style and shape of button as one sheet.", 0,
     0, true},
};

// The commands that work on one Skin as a load leaves it.
constexpr std::initializer_list<Command> kLoading = {Command::Dump,  Command::Save,    Command::Render,
                                                     Command::Sheet, Command::Preview, Command::Diff,
                                                     Command::Copy,  Command::Recolour};

const OptionEntry kOptions[] = {
    {"to",
     "PATH",
     "where to write; a folder is made when it isn't there",
     {Command::Save, Command::Render, Command::Sheet, Command::Preview, Command::Buttons, Command::Copy,
      Command::Recolour, Command::Pack, Command::Unpack}},
    {"cover", "NAME", "also saves the cover layout, under this name", {Command::Save}},
    {"only", "ENTRY", "draws this screen alone; may be given again for further ones", {Command::Render}},
    {"hue", "DEGREES", "turns the hue of the colours, from -360 to 360", {Command::Recolour}},
    {"saturation", "PERCENT", "takes or gives saturation, from -100 to 100", {Command::Recolour}},
    {"lightness", "PERCENT", "the way to black, down to -100, or to white, up to 100", {Command::Recolour}},
    {"replace",
     "#RRGGBB=#RRGGBB",
     "gives the second colour to all places of the first; may be given again for further ones",
     {Command::Recolour}},
    {"pictures", nullptr, "turns the pictures too, each in its own format", {Command::Recolour}},
    {"script", "FILE", "plays a script after the load; - is standard input", kLoading},
    {"reload", nullptr, "reads the files once more, in the order of a change of Skin", kLoading},
    {"screen", "WIDTHxHEIGHT", "the size of the screen in pixels; 1024x768 without it", kLoading},
    {"dpi", "N", "the screen's dots per logical inch; 96 without it", kLoading},
    {"design", nullptr, "also tells, as hints, what a touch screen suffers from", {Command::Check}},
    {"touch", "N", "with --design: the least side of a button in pixels; 32 without it", {Command::Check}},
    {"piece", nullptr, nullptr, {Command::Check}},
    {"look", "NAME", "the look, or \"list\" for the names of all of them", {Command::New}},
    {"size", "WIDTHxHEIGHT", "the Skin's size in pixels; that of the look without it", {Command::New}},
    {"accent", "#RRGGBB", "the colour of lines, light and what is to be touched next", {Command::New}},
    {"ground", "#RRGGBB", "the colour that everything stands on", {Command::New}},
    {"text", "#RRGGBB", "the colour of the texts, moved where it could not be read", {Command::New}},
    {"font", "NAME", "the font of all texts", {Command::New}},
    {"help", nullptr, "prints this help", {}},
    {"version", nullptr, "prints the program's version", {}},
};

QString usageLine(const CommandEntry& entry) {
  return QStringLiteral("skintool %1 %2\n")
      .arg(QString::fromLatin1(entry.name), QString::fromLatin1(entry.operands));
}

QString optionLine(const OptionEntry& option) {
  QString words = QStringLiteral("  --") + QString::fromLatin1(option.name);
  if (option.value) words += u' ' + QString::fromLatin1(option.value);
  return words.leftJustified(26) + QString::fromLatin1(option.what) + u'\n';
}

}  // namespace

std::span<const OptionEntry> commandOptions() {
  return kOptions;
}

bool takesOption(Command command, const OptionEntry& option) {
  return option.commands.size() == 0 || std::ranges::find(option.commands, command) != option.commands.end();
}

const CommandEntry* findCommand(const QString& name) {
  const auto* found = std::ranges::find_if(
      kCommands, [&](const CommandEntry& entry) { return name == QLatin1String(entry.name); });
  return found == std::end(kCommands) ? nullptr : found;
}

QString usageText() {
  QStringList lines;
  for (const CommandEntry& entry : kCommands) lines << usageLine(entry);
  lines << QStringLiteral("skintool COMMAND --help\n") << QStringLiteral("skintool --version\n");
  return QStringLiteral("usage: ") + lines.join(QStringLiteral("       "));
}

QString helpText(const CommandEntry& command) {
  QString text = QStringLiteral("usage: ") + usageLine(command) + u'\n';
  text += QString::fromLatin1(command.what) + QStringLiteral("\n\noptions:\n");
  for (const OptionEntry& option : kOptions)
    if (option.what && takesOption(command.command, option)) text += optionLine(option);
  return text;
}

}  // namespace veneerer
