#include "problems/missingreferences.h"

namespace veneerer {

std::vector<const Element*> missingReferences(const State& state, const SkinFolder& folder) {
  std::vector<const Element*> missing;
  for (const Family* family : state.names.families())
    for (const Element* slot : family->members()) {
      const QString reference = slot->as<StoredValue>(Property::Name).text();
      if (!reference.isEmpty() && folder.resolve(reference).isEmpty()) missing.push_back(slot);
    }
  return missing;
}

}  // namespace veneerer
