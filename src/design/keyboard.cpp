#include "design/keyboard.h"

namespace veneerer::design {

namespace {

struct LetterRow {
  const char* letters;
  int column;  // in half keys
};

constexpr LetterRow kLetterRows[] = {{"QWERTYUIOP", 0}, {"ASDFGHJKL", 1}, {"ZXCVBNM", 3}};
constexpr const char* kDigits = "1234567890";

}  // namespace

Keyboard::Keyboard(Composer& composer, Array<Button>& keys, Element& holder, const Box& area, int rows)
    : composer_(composer), keys_(keys), holder_(holder), grid_(area, kHalfKeys, rows, composer.px(4)) {}

void Keyboard::letters(int firstMember, int firstRow) {
  int row = firstRow;
  for (const LetterRow& line : kLetterRows) {
    int column = line.column;
    for (const char* letter = line.letters; *letter; ++letter, column += 2)
      composer_.button(keys_[firstMember + (*letter - 'A')], holder_, grid_.span(column, row, 2),
                       QString(QLatin1Char(*letter)), composer_.theme.key, Composer::kKeyPoints);
    ++row;
  }
}

void Keyboard::digits(Array<Button>& keys, int firstMember, int row) {
  for (int i = 0; i < 10; ++i)
    composer_.button(keys[firstMember + i], holder_, grid_.span(2 * i, row, 2),
                     QString(QLatin1Char(kDigits[i])), composer_.theme.key, Composer::kKeyPoints);
}

void Keyboard::words(std::span<const WordKey> words) {
  for (const WordKey& word : words)
    composer_.button(keys_[word.member], holder_, grid_.span(word.column, word.row, word.halves),
                     QString::fromLatin1(word.caption), composer_.theme.wideKey);
}

void fullKeyboard(Composer& composer, Array<Button>& keys, Element& holder, const Box& area,
                  const char* confirm) {
  Keyboard keyboard(composer, keys, holder, area, 5);
  keyboard.digits(keys, 26, 0);
  keyboard.letters(0, 1);
  const WordKey words[] = {
      {37, 3, 17, 3, "Delete"}, {39, 4, 0, 4, "Cancel"}, {36, 4, 4, 12, "Space"}, {38, 4, 16, 4, confirm}};
  keyboard.words(words);
}

}  // namespace veneerer::design
