// On-screen keyboards: letters in the usual three rows, each key two columns of half-key wide.
#pragma once

#include "design/composer.h"

namespace veneerer::design {

/// How many half keys a row holds.
inline constexpr int kHalfKeys = 20;

/// A key with a word on it: which member of the family, where in half keys, and what it says.
struct WordKey {
  int member;
  int row;
  int column;
  int halves;
  const char* caption;
};

class Keyboard {
public:
  /// A keyboard of that many rows over an area.
  Keyboard(Composer& composer, Array<Button>& keys, Element& holder, const Box& area, int rows);

  /// The keys A to Z, which begin at that member, on three rows from that one on.
  void letters(int firstMember, int firstRow);
  /// The keys 1 to 9 and 0 on one row.
  void digits(Array<Button>& keys, int firstMember, int row);
  void words(std::span<const WordKey> words);

private:
  Composer& composer_;
  Array<Button>& keys_;
  Element& holder_;
  Grid grid_;
};

/// The keyboard of the dialogs with 40 keys: 0 to 25 letters, 26 to 35 digits, space, delete, then a key that
/// confirms and one that cancels.
void fullKeyboard(Composer& composer, Array<Button>& keys, Element& holder, const Box& area,
                  const char* confirm);

}  // namespace veneerer::design
