#include "forms/globals.h"

namespace veneerer {

QString CoverIndex::rangeFault(Property, const Value& value) const {
  const int index = std::get<std::int32_t>(value);
  if (index >= -1 && index <= kHighestCover) return {};
  return QStringLiteral("there is no cover %1").arg(index);
}

}  // namespace veneerer
