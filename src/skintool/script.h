// Scripts: what an operator does, one action a line.
#pragma once

#include <QString>

#include "designer/designer.h"
#include "platform/scripteddialogs.h"

namespace veneerer {

/// One word of a script line.
struct ScriptWord {
  QString text;
  bool isQuoted = false;
};

/// The words of a line; a text with blanks stands in double quotes, with \" and \\ inside. Throws ScriptError
/// for a quote that isn't closed.
QList<ScriptWord> splitScriptLine(const QString& line);

/// Plays scripts on a designer.
class ScriptPlayer {
public:
  ScriptPlayer(Designer& designer, ScriptedDialogs& dialogs) : designer_(designer), dialogs_(dialogs) {}

  /// Plays all lines. Throws ScriptError whose text begins with the script's name and the line, or
  /// RecordError when an action ends the program.
  void play(const QString& name, const QString& text);

private:
  using Words = QList<ScriptWord>;
  using Action = void (ScriptPlayer::*)(const Words& words);
  struct Entry;
  static const Entry kActions[];

  void playLine(const QString& line);

  void screen(const Words& words);
  void click(const Words& words);
  void press(const Words& words);
  void move(const Words& words);
  void nudge(const Words& words);
  void choose(const Words& words);
  void doubleClick(const Words& words);
  void set(const Words& words);
  void tick(const Words& words);
  void resize(const Words& words);
  void reload(const Words& words);
  void answer(const Words& words);
  void file(const Words& words);
  void colour(const Words& words);
  void font(const Words& words);
  void undo(const Words& words);
  void redo(const Words& words);
  void select(const Words& words);
  void align(const Words& words);
  void distribute(const Words& words);
  void sameSize(const Words& words);

  Element& element(const ScriptWord& word);
  RowList& rows(const ScriptWord& word);
  void chooseRow(RowList& list, const ScriptWord& row);

  Designer& designer_;
  ScriptedDialogs& dialogs_;
};

}  // namespace veneerer
