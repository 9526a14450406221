#include <algorithm>
#include <functional>

#include "fuzz/target.h"

namespace veneerer::fuzz {

std::span<const Target> targets() {
  static const Target kTargets[] = {kRecords,  kCovers,   kScript,      kNumbers,
                                    kPictures, kArchives, kRecolouring, kDesigner};
  return kTargets;
}

const Target* findTarget(const QByteArray& name) {
  const auto found =
      std::ranges::find(targets(), name, [](const Target& each) { return QByteArray(each.name); });
  return found == targets().end() ? nullptr : &*found;
}

}  // namespace veneerer::fuzz
