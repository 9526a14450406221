#include "skintool/exchangecommands.h"

#include <algorithm>

#include "elements/printable.h"
#include "exchange/skincopy.h"
#include "exchange/skinpacking.h"
#include "exchange/skinunpacking.h"
#include "recolouring/storedcolours.h"
#include "skintool/output.h"

namespace veneerer {

namespace {

void tell(const QString& text, std::FILE* err) {
  print(err, printable(text).toUtf8() + '\n');
}

void tellLeftOut(const QList<LeftOut>& leftOut, std::FILE* err) {
  for (const LeftOut& left : leftOut)
    tell(QStringLiteral("%1: left out: %2").arg(left.name, left.reason), err);
}

/// "#0A141E" of the number of a plain colour.
QString nameOf(std::int32_t number) {
  return Colour(number).toQColor().name().toUpper();
}

void tellUnused(const std::vector<ColourUse>& uses, const ColourMap& map, std::FILE* err) {
  QStringList unused;
  for (auto it = map.replaced.keyBegin(); it != map.replaced.keyEnd(); ++it)
    if (std::ranges::find(uses, Colour(*it), &ColourUse::colour) == uses.end()) unused << nameOf(*it);
  unused.sort();
  for (const QString& colour : unused) tell(QStringLiteral("%1: no place has this colour").arg(colour), err);
}

}  // namespace

void copyTo(Designer& designer, const QString& folder, std::FILE* err) {
  const QString from = designer.skinFolder().path();
  tellLeftOut(copySkin(designer.state(), designer.platform().disk, from, folder), err);
}

void recolourTo(Designer& designer, const QString& folder, const Recolouring& recolouring, std::FILE* err) {
  tellUnused(usesOf(storedColours(designer.state())), recolouring.map, err);
  const NotRecoloured done = copyRecoloured(designer.state(), designer.platform(),
                                            designer.skinFolder().path(), folder, recolouring);
  tellLeftOut(done.leftOut, err);
  for (const LeftOut& kept : done.pictures)
    tell(QStringLiteral("%1: copied as it is: %2").arg(kept.name, kept.reason), err);
}

int runPack(const Arguments& arguments, std::FILE* err) {
  Disk disk;
  tellLeftOut(packSkin(disk, arguments.skins.first(), arguments.to), err);
  return 0;
}

int runUnpack(const Arguments& arguments) {
  Disk disk;
  unpackSkin(disk, arguments.archive, arguments.to);
  return 0;
}

}  // namespace veneerer
