#include "forms/globals.h"

#include "forms/texts.h"

namespace veneerer {

QString CoverIndex::rangeFault(Property, const Value& value) const {
  const int index = std::get<std::int32_t>(value);
  if (index >= -1 && index <= kHighestCover) return {};
  return FormTexts::tr("there is no cover %1").arg(index);
}

}  // namespace veneerer
