#include "skintool/script.h"

#include <cmath>

#include "elements/controls.h"
#include "elements/printable.h"
#include "platform/skinfolder.h"

namespace veneerer {

namespace {

float number(const ScriptWord& word) {
  bool isNumber = false;
  const float value = word.text.toFloat(&isNumber);
  if (!isNumber || !std::isfinite(value))
    throw ScriptError(QStringLiteral("%1 is no number").arg(excerpt(word.text)));
  return value;
}

int wholeNumber(const ScriptWord& word) {
  bool isNumber = false;
  const int value = word.text.toInt(&isNumber);
  if (!isNumber) throw ScriptError(QStringLiteral("%1 is no whole number").arg(excerpt(word.text)));
  return value;
}

bool isWord(const ScriptWord& word, QStringView text) {
  return !word.isQuoted && word.text == text;
}

MouseButton otherButton(const ScriptWord& word) {
  if (isWord(word, u"right")) return MouseButton::Right;
  if (isWord(word, u"middle")) return MouseButton::Middle;
  throw ScriptError(QStringLiteral("press knows only the words \"right\" and \"middle\""));
}

// Undo and redo know no other word.
bool areAll(const QList<ScriptWord>& words) {
  if (words.isEmpty()) return false;
  if (!isWord(words[0], u"all")) throw ScriptError(QStringLiteral("the only word behind it is all"));
  return true;
}

ScriptWord quotedWord(const QString& line, qsizetype& at) {
  ScriptWord word{{}, true};
  for (++at; at < line.size() && line[at] != u'"'; ++at) {
    const bool isEscape =
        line[at] == u'\\' && at + 1 < line.size() && (line[at + 1] == u'"' || line[at + 1] == u'\\');
    if (isEscape) ++at;
    word.text += line[at];
  }
  if (at == line.size()) throw ScriptError(QStringLiteral("a double quote isn't closed"));
  ++at;
  return word;
}

ScriptWord plainWord(const QString& line, qsizetype& at) {
  ScriptWord word;
  for (; at < line.size() && !line[at].isSpace(); ++at) word.text += line[at];
  return word;
}

}  // namespace

QList<ScriptWord> splitScriptLine(const QString& line) {
  QList<ScriptWord> words;
  qsizetype at = 0;
  while (at < line.size()) {
    if (line[at].isSpace())
      ++at;
    else
      words.append(line[at] == u'"' ? quotedWord(line, at) : plainWord(line, at));
  }
  return words;
}

struct ScriptPlayer::Entry {
  QLatin1String name;
  int fewest;  ///< words behind the name
  int most;
  Action action;
};

const ScriptPlayer::Entry ScriptPlayer::kActions[] = {
    {QLatin1String("screen"), 1, 9, &ScriptPlayer::screen},
    {QLatin1String("click"), 1, 1, &ScriptPlayer::click},
    {QLatin1String("press"), 3, 4, &ScriptPlayer::press},
    {QLatin1String("move"), 3, 4, &ScriptPlayer::move},
    {QLatin1String("nudge"), 3, 3, &ScriptPlayer::nudge},
    {QLatin1String("choose"), 2, 2, &ScriptPlayer::choose},
    {QLatin1String("doubleclick"), 2, 2, &ScriptPlayer::doubleClick},
    {QLatin1String("set"), 2, 2, &ScriptPlayer::set},
    {QLatin1String("tick"), 1, 2, &ScriptPlayer::tick},
    {QLatin1String("resize"), 2, 2, &ScriptPlayer::resize},
    {QLatin1String("reload"), 1, 1, &ScriptPlayer::reload},
    {QLatin1String("answer"), 1, 1, &ScriptPlayer::answer},
    {QLatin1String("file"), 1, 1, &ScriptPlayer::file},
    {QLatin1String("colour"), 1, 1, &ScriptPlayer::colour},
    {QLatin1String("font"), 1, 6, &ScriptPlayer::font},
    {QLatin1String("undo"), 0, 1, &ScriptPlayer::undo},
    {QLatin1String("redo"), 0, 1, &ScriptPlayer::redo},
    {QLatin1String("select"), 0, 10000, &ScriptPlayer::select},
    {QLatin1String("align"), 1, 1, &ScriptPlayer::align},
    {QLatin1String("distribute"), 1, 1, &ScriptPlayer::distribute},
    {QLatin1String("samesize"), 1, 1, &ScriptPlayer::sameSize},
};

void ScriptPlayer::play(const QString& name, const QString& text) {
  int lineNumber = 0;
  for (const QString& line : text.split(u'\n')) {
    ++lineNumber;
    try {
      playLine(line);
    } catch (const ScriptError& error) {
      const QString place = name + u':' + QString::number(lineNumber) + QStringLiteral(": ");
      throw ScriptError(place + QString::fromUtf8(error.what()));
    }
  }
}

void ScriptPlayer::playLine(const QString& line) {
  const QString bare = line.trimmed();
  if (bare.isEmpty() || bare.startsWith(u'#')) return;
  Words words = splitScriptLine(bare);
  const ScriptWord name = words.takeFirst();
  for (const Entry& entry : kActions) {
    if (name.text != entry.name) continue;
    if (words.size() < entry.fewest || words.size() > entry.most)
      throw ScriptError(QStringLiteral("%1 takes another number of words").arg(excerpt(name.text)));
    // Only a move goes on with the line ahead of it.
    if (entry.action != &ScriptPlayer::move) designer_.history().settle();
    (this->*entry.action)(words);
    return;
  }
  throw ScriptError(QStringLiteral("there is no action \"%1\"").arg(excerpt(name.text)));
}

Element& ScriptPlayer::element(const ScriptWord& word) {
  Element* found = designer_.state().find(word.text);
  if (!found) throw ScriptError(QStringLiteral("there is no element %1").arg(excerpt(word.text)));
  return *found;
}

RowList& ScriptPlayer::rows(const ScriptWord& word) {
  Element& found = element(word);
  if (!found.has(Property::List)) throw ScriptError(QStringLiteral("%1 has no rows").arg(excerpt(word.text)));
  if (&found == &*designer_.state().form6.List1) designer_.fillFonts();
  return cast<RowList>(found);
}

// A bare number is a row, counted from 0; anything else is a row's text.
void ScriptPlayer::chooseRow(RowList& list, const ScriptWord& row) {
  bool isNumber = false;
  int index = row.text.toInt(&isNumber);
  if (row.isQuoted || !isNumber) index = static_cast<int>(list.list().indexOf(row.text));
  if (index < 0 || !designer_.choose(list, index))
    throw ScriptError(QStringLiteral("%1 has no row \"%2\"").arg(list.key(), excerpt(row.text)));
}

void ScriptPlayer::screen(const Words& words) {
  QStringList texts;
  for (const ScriptWord& word : words) texts.append(word.text);
  chooseRow(*designer_.state().form6.Combo6, {texts.join(u' '), true});
}

void ScriptPlayer::click(const Words& words) {
  designer_.click(element(words[0]));
}

void ScriptPlayer::press(const Words& words) {
  MouseButton button = MouseButton::Left;
  if (words.size() == 4) button = otherButton(words[3]);
  designer_.press(element(words[0]), number(words[1]), number(words[2]), button);
}

void ScriptPlayer::move(const Words& words) {
  const bool isFree = words.size() == 4;
  if (isFree && !isWord(words[3], u"none"))
    throw ScriptError(QStringLiteral("move knows only the word \"none\""));
  designer_.move(element(words[0]), number(words[1]), number(words[2]),
                 isFree ? MouseButton::None : MouseButton::Left);
}

void ScriptPlayer::nudge(const Words& words) {
  designer_.nudge(element(words[0]), wholeNumber(words[1]), wholeNumber(words[2]));
}

void ScriptPlayer::choose(const Words& words) {
  chooseRow(rows(words[0]), words[1]);
}

void ScriptPlayer::doubleClick(const Words& words) {
  RowList& list = rows(words[0]);
  if (&list != &*designer_.state().form4.File1)
    throw ScriptError(QStringLiteral("%1 has no second event").arg(words[0].text));
  if (!list.list().contains(words[1].text))
    throw ScriptError(QStringLiteral("%1 has no row \"%2\"").arg(list.key(), excerpt(words[1].text)));
  designer_.chooseTwice(list, static_cast<int>(list.list().indexOf(words[1].text)));
}

void ScriptPlayer::set(const Words& words) {
  Element& found = element(words[0]);
  if (found.kind() != Kind::TextBox && found.kind() != Kind::ComboBox)
    throw ScriptError(QStringLiteral("nothing can be typed into %1").arg(words[0].text));
  designer_.type(found, words[1].text);
}

void ScriptPlayer::tick(const Words& words) {
  Element& found = element(words[0]);
  if (found.kind() == Kind::OptionButton && words.size() == 1)
    designer_.select(cast<OptionButton>(found));
  else if (found.kind() == Kind::CheckBox && words.size() == 2 &&
           (words[1].text == u"0" || words[1].text == u"1"))
    designer_.tick(cast<CheckBox>(found), wholeNumber(words[1]));
  else
    throw ScriptError(QStringLiteral("%1 can't be ticked like that").arg(words[0].text));
}

void ScriptPlayer::resize(const Words& words) {
  designer_.resizeCanvas(number(words[0]), number(words[1]));
}

void ScriptPlayer::reload(const Words& words) {
  const QString& name = words[0].text;
  if (!SkinsRoot(designer_.platform().folder).skins().contains(name))
    throw ScriptError(QStringLiteral("there is no Skin \"%1\" beside this one").arg(excerpt(name)));
  designer_.reload(name);
}

void ScriptPlayer::answer(const Words& words) {
  if (!isWord(words[0], u"ok") && !isWord(words[0], u"cancel"))
    throw ScriptError(QStringLiteral("an answer is ok or cancel"));
  dialogs_.answers.enqueue(words[0].text == u"ok");
}

void ScriptPlayer::file(const Words& words) {
  dialogs_.files.enqueue(isWord(words[0], u"cancel") ? QString() : words[0].text);
}

void ScriptPlayer::colour(const Words& words) {
  if (isWord(words[0], u"cancel"))
    dialogs_.colours.enqueue(std::nullopt);
  else
    dialogs_.colours.enqueue(wholeNumber(words[0]));
}

void ScriptPlayer::font(const Words& words) {
  if (isWord(words[0], u"cancel") && words.size() == 1) {
    dialogs_.fonts.enqueue(std::nullopt);
    return;
  }
  if (words.size() < 2) throw ScriptError(QStringLiteral("a font has a name and a size"));
  FontChoice font;
  font.name = words[0].text;
  font.size = number(words[1]);
  for (const ScriptWord& word : words.mid(2)) {
    bool* flag = isWord(word, u"bold")            ? &font.bold
                 : isWord(word, u"italic")        ? &font.italic
                 : isWord(word, u"underline")     ? &font.underline
                 : isWord(word, u"strikethrough") ? &font.strikethrough
                                                  : nullptr;
    if (!flag) throw ScriptError(QStringLiteral("a font knows no \"%1\"").arg(excerpt(word.text)));
    *flag = true;
  }
  dialogs_.fonts.enqueue(font);
}

void ScriptPlayer::undo(const Words& words) {
  if (areAll(words)) return designer_.history().undoAll();
  if (!designer_.history().undo()) throw ScriptError(QStringLiteral("there is nothing to undo"));
}

void ScriptPlayer::redo(const Words& words) {
  if (areAll(words)) return designer_.history().redoAll();
  if (!designer_.history().redo()) throw ScriptError(QStringLiteral("there is nothing to redo"));
}

// Only what stands on the canvas has a place there.
void ScriptPlayer::select(const Words& words) {
  std::vector<Element*> elements;
  for (const ScriptWord& word : words) {
    Element& found = element(word);
    if (!found.family() || &found.window() != &designer_.state().form1)
      throw ScriptError(QStringLiteral("%1 can't be selected").arg(found.key()));
    elements.push_back(&found);
  }
  designer_.overlay().select(std::move(elements));
}

void ScriptPlayer::align(const Words& words) {
  const std::optional<AlignTo> line = alignToNamed(words[0].text);
  if (!line) throw ScriptError(QStringLiteral("align knows no \"%1\"").arg(excerpt(words[0].text)));
  designer_.align(*line);
}

void ScriptPlayer::distribute(const Words& words) {
  const std::optional<Along> along = alongNamed(words[0].text);
  if (!along) throw ScriptError(QStringLiteral("distribute knows no \"%1\"").arg(excerpt(words[0].text)));
  designer_.distribute(*along);
}

void ScriptPlayer::sameSize(const Words& words) {
  const std::optional<Sides> sides = sidesNamed(words[0].text);
  if (!sides) throw ScriptError(QStringLiteral("samesize knows no \"%1\"").arg(excerpt(words[0].text)));
  designer_.makeSameSize(*sides);
}

}  // namespace veneerer
