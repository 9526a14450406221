// What a stranger's text may do to a message.
#include "elements/printable.h"

#include <gtest/gtest.h>

#include "elements/notes.h"

namespace veneerer {
namespace {

TEST(Printable, LeavesNothingThatForgesALineOrSteersATerminal) {
  const struct {
    const char32_t* text;
    const char* shown;
  } cases[] = {
      {U"menu.ini:1: error\n", "menu.ini:1: error?"},
      {U"\x1b]0;title\a", "?]0;title?"},
      {U"\u009b31m\u0085\u007f", "?31m??"},
      {U"a\u2028b\u2029c", "a?b?c"},
      {U"\u202egnp.exe\u200b", "?gnp.exe?"},
      {U"tag\U000E0041", "tag?"},
      {U"caf\u00e9 \U0001F3B5\tx", "caf\u00e9 \U0001F3B5?x"},
  };
  for (const auto& c : cases) EXPECT_EQ(printable(QString::fromUcs4(c.text)).toStdString(), c.shown);
  EXPECT_EQ(printable(QString(QChar(0xD83C))), QString(QChar::ReplacementCharacter));
}

TEST(Printable, CutsAnExcerptBetweenCodePoints) {
  const QString notes = QStringLiteral("\U0001F3B5").repeated(70);
  EXPECT_EQ(excerpt(notes), notes.left(120));
  EXPECT_EQ(excerpt("a\nbc", 3).toStdString(), "a?b");
}

TEST(Printable, ShowsAThousandCharactersOfAnyText) {
  const QString note = "\U0001F3B5";
  EXPECT_EQ(shownText("a\n" + note.repeated(998)), "a?" + note.repeated(998));
  const QString cut = note.repeated(999) + QChar(0x2026);
  EXPECT_EQ(shownText(note.repeated(1001)), cut);
  EXPECT_EQ(shownText(note.repeated(1'000'000)), cut);
  Notes notes;
  notes.say(note.repeated(2000));
  EXPECT_EQ(notes.texts(), QStringList{cut});
}

}  // namespace
}  // namespace veneerer
