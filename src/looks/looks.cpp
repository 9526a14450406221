#include "looks/looks.h"

#include <algorithm>
#include <iterator>

namespace veneerer::looks {

namespace {

constexpr const Look* kLooks[] = {&kBlackAndBlue, &kCopperLounge, &kDaylight,  &kPaper,
                                  &kNeonNights,   &kOldOak,       &kClearView, &kTower};

}  // namespace

std::span<const Look* const> allLooks() {
  return kLooks;
}

const Look* findLook(const QString& name) {
  const auto* found = std::ranges::find_if(kLooks, [&](const Look* look) {
    return name.compare(QLatin1String(look->name), Qt::CaseInsensitive) == 0;
  });
  return found == std::end(kLooks) ? nullptr : *found;
}

}  // namespace veneerer::looks
