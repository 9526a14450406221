// One line of a record file: what stands on it, where the reader puts that and where the writer takes it
// from.
#pragma once

#include <QString>
#include <array>
#include <limits>
#include <variant>

#include "elements/button.h"
#include "forms/globals.h"
#include "forms/imagenames.h"

namespace veneerer {

/// A line for a human reader: a fixed text, or a prefix and an element's caption. It counts as one value and
/// is dropped on reading.
struct Literal {
  QString text;
  const Element* captionOf = nullptr;  ///< whose caption follows the text, null for none
};

/// How a field's value stands on its line.
enum class ValueKind : std::uint8_t {
  Text,
  NumberText,  ///< a Text that the reader takes as a number
  Integer,     ///< 16 bit
  Long,        ///< 32 bit
  Colour,      ///< a Long
  Single,
  Whole,     ///< a Single whose fraction is dropped on writing
  FontSize,  ///< a Single of whole points, read as a whole line
};

/// A property of one element.
struct Slot {
  Element* element;
  Property property;
};

/// A value that lives in an element.
struct Field {
  ValueKind kind;
  Slot into;                       ///< what the reader fills
  Slot from;                       ///< what the writer takes; the same as into in nearly every row
  const float* scale = nullptr;    ///< multiplies a Single or a Whole on reading, null for none
  bool isHeldBack = false;         ///< the reader sets 0 and leaves the value to the next button's reference
  bool aboveMinusOneOnly = false;  ///< a Single that is applied only when greater than -1
};

/// An image reference, kept as it was read.
struct Reference {
  ImageSlot* into;                  ///< where the reader keeps it
  ImageSlot* from;                  ///< where the writer takes it; the same as into in nearly every row
  Button* button = nullptr;         ///< shows it by the image rule: picture, shape held back, PictureSize 3
  std::array<Element*, 3> boxes{};  ///< each shows the file when it exists; unused ones are null
  bool keepsPictureWhenEmpty = false;  ///< an empty reference leaves the button's picture alone
};

/// An Integer that tells which of the later lines a file holds: those that need no more than its number. It
/// is either the version of the file's form, of which a save always writes the newest and all others count as
/// older; or a number of the state, such as that of the covers in use, for which the layout was made.
struct Counter {
  const char* name;                    ///< for messages
  CoverIndex* kept = nullptr;          ///< the number of the state, null for a version
  int (*intoRange)(double) = nullptr;  ///< what becomes of the file's number where it is kept
  int newest = 0;                      ///< the newest version

  /// The number that a save writes.
  int number() const { return kept ? kept->value() : newest; }
};

/// One line of a record file.
struct Row {
  static constexpr int kAlways = std::numeric_limits<int>::min();

  std::variant<Literal, Field, Reference, Counter> content;
  bool startsBlock = false;    ///< the file may end ahead of this row, once it has become optional
  bool isOptional = false;     ///< from here on the file may end ahead of a block
  int least = kAlways;         ///< absent from a file whose counter has a lower number
  bool isWrittenOnly = false;  ///< the reader never takes this line
  const char* why = nullptr;   ///< the reason, where reader and writer differ

  // What the line is, null when it is something else.
  const Literal* literal() const { return std::get_if<Literal>(&content); }
  const Field* field() const { return std::get_if<Field>(&content); }
  const Reference* reference() const { return std::get_if<Reference>(&content); }
  const Counter* counter() const { return std::get_if<Counter>(&content); }
};

}  // namespace veneerer
