#include "elements/value.h"

#include "elements/numbers.h"

namespace veneerer {

QString StoredValue::text() const {
  return isNumber() ? plainNumber(number()) : std::get<QString>(value_);
}

}  // namespace veneerer
