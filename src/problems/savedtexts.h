// What becomes of the texts of live elements in the record files.
#pragma once

#include "elements/element.h"

namespace veneerer {

/// A sentence for a finding: what a save and the next load make of a text that a record file holds; empty
/// when it comes back. Properties that hold no text suffer nothing here.
QString savedTextDamage(const Element& element, Property property);

}  // namespace veneerer
