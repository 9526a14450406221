// The command line of the batch tool.
#pragma once

#include <QString>
#include <QStringList>
#include <stdexcept>

#include "looks/skinbuilder.h"
#include "platform/platform.h"
#include "recolouring/recolouredcopy.h"
#include "skintool/commands.h"

namespace veneerer {

/// Wrong use of the command line; the text says what is wrong.
class UsageError : public std::runtime_error {
public:
  explicit UsageError(const QString& what) : std::runtime_error(what.toStdString()) {}
};

struct Arguments {
  QString answer;  ///< what --help or --version asks for; when it isn't empty nothing else is to be done
  Command command = Command::Dump;
  QStringList
      skins;  ///< paths of Skin folders; one but for check, render and diff, none for buttons and unpack
  QStringList options;   ///< all but --to as they were given, for the command lines of single Skins
  bool isPiece = false;  ///< check: of one Skin among several, see runPieces()
  QString archive;       ///< unpack: its path
  QString to;            ///< save, render, copy, pack, unpack and what draws: the target
  looks::Wish wish;      ///< new: what is to be drawn into `to`; without a look, the looks are to be listed
  QString cover;         ///< save: the cover file's name, empty to leave the covers out
  QStringList only;      ///< render: the entries to render, empty for all
  QString script;        ///< a script to play after the load, "-" for standard input, empty for none
  bool reload = false;
  Recolouring recolouring;
  bool design = false;  ///< check: hints as well
  int touch = 0;        ///< check: the least side of a button for a hint, pixels
  Screen screen;
};

/// Throws UsageError.
Arguments parseArguments(const QStringList& arguments);

}  // namespace veneerer
