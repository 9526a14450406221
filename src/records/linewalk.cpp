#include "records/linewalk.h"

namespace veneerer {

const Row* LineWalk::next() {
  while (next_ < rows_.size()) {
    const Row& row = rows_[next_++];
    if (count_ < row.least) continue;
    if (const Counter* counter = row.counter()) count_ = counter->number();
    return &row;
  }
  return nullptr;
}

}  // namespace veneerer
