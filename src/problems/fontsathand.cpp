#include "problems/fontsathand.h"

#include <QFontDatabase>
#include <algorithm>
#include <iterator>

namespace veneerer {

namespace {

/// The free families were drawn to the widths of the other ones.
struct Substitute {
  const char* family;
  const char* substitute;
};
constexpr Substitute kSubstitutes[] = {
    {"Arial", "Liberation Sans"},
    {"Arial", "Arimo"},
    {"Arial", "Nimbus Sans"},
    {"Helvetica", "Nimbus Sans"},
    {"Helvetica", "Liberation Sans"},
    {"Arial Narrow", "Liberation Sans Narrow"},
    {"Arial Narrow", "Nimbus Sans Narrow"},
    {"Times New Roman", "Liberation Serif"},
    {"Times New Roman", "Tinos"},
    {"Times New Roman", "Nimbus Roman"},
    {"Times", "Nimbus Roman"},
    {"Courier New", "Liberation Mono"},
    {"Courier New", "Cousine"},
    {"Courier New", "Nimbus Mono PS"},
    {"Courier", "Nimbus Mono PS"},
    {"Calibri", "Carlito"},
    {"Cambria", "Caladea"},
    {"Georgia", "Gelasio"},
    {"Book Antiqua", "P052"},
    {"Palatino Linotype", "P052"},
    {"Bookman Old Style", "URW Bookman"},
    {"Century Gothic", "URW Gothic"},
    {"Century Schoolbook", "C059"},
};

bool isSame(const QString& family, const char* name) {
  return family.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

bool isHereOrSubstituted(const QString& family) {
  if (QFontDatabase::hasFamily(family)) return true;
  return std::ranges::any_of(kSubstitutes, [&](const Substitute& row) {
    return isSame(family, row.family) && QFontDatabase::hasFamily(QString::fromLatin1(row.substitute));
  });
}

}  // namespace

bool FontsAtHand::has(const QString& family) {
  const auto known = known_.constFind(family);
  if (known != known_.constEnd()) return *known;
  return *known_.insert(family, isHereOrSubstituted(family));
}

}  // namespace veneerer
