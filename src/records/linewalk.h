// The one walk over a layout's rows. Reader, writer and everyone who compares go through it.
#pragma once

#include <span>

#include "records/row.h"

namespace veneerer {

/// Gives the lines that a file holds, in file order: the rows but those that its counter leaves out.
class LineWalk {
public:
  explicit LineWalk(std::span<const Row> rows) : rows_(rows) {}

  /// The next line, null behind the last one. A counter's own number governs the lines behind it.
  const Row* next();
  /// The place among the rows of the line that next() gave last.
  std::size_t index() const { return next_ - 1; }
  /// Puts the number that a file holds in the place of the counter's own.
  void setCount(int number) { count_ = number; }

private:
  std::span<const Row> rows_;
  std::size_t next_ = 0;
  int count_ = 0;
};

}  // namespace veneerer
