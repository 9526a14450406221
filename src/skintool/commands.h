// What the batch tool can do, as tables: the command line, its checks and the help all read the same rows.
#pragma once

#include <QString>
#include <cstdint>
#include <initializer_list>
#include <span>

namespace veneerer {

enum class Command : std::uint8_t {
  Dump,
  Save,
  Render,
  Check,
  Sheet,
  Preview,
  Buttons,
  Diff,
  Copy,
  Recolour,
  Pack,
  Unpack,
  New
};

struct CommandEntry {
  Command command;
  const char* name;
  const char* operands;  ///< what follows the name in the usage line
  const char* what;
  int fewestSkins;
  int mostSkins;
  bool needsTarget;           ///< --to must be there
  bool takesArchive = false;  ///< one archive in the place of Skins
  bool takesFolder = false;   ///< one folder that is to be made
};

struct OptionEntry {
  const char* name;
  const char* value;                        ///< null for a switch
  const char* what;                         ///< null for one that the tool gives to itself alone
  std::initializer_list<Command> commands;  ///< empty for all
};

std::span<const OptionEntry> commandOptions();

bool takesOption(Command command, const OptionEntry& option);

/// Null when there is no command of that name.
const CommandEntry* findCommand(const QString& name);

/// Every command's usage line.
QString usageText();

/// What one command does, with its options.
QString helpText(const CommandEntry& command);

}  // namespace veneerer
