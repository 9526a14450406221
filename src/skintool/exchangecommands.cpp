#include "skintool/exchangecommands.h"

#include "elements/printable.h"
#include "exchange/skincopy.h"
#include "exchange/skinpacking.h"
#include "exchange/skinunpacking.h"
#include "skintool/output.h"

namespace veneerer {

namespace {

void tellLeftOut(const QList<LeftOut>& leftOut, std::FILE* err) {
  for (const LeftOut& left : leftOut) {
    const QString text = QStringLiteral("%1: left out: %2").arg(left.name, left.reason);
    print(err, printable(text).toUtf8() + '\n');
  }
}

}  // namespace

void copyTo(Designer& designer, const QString& folder, std::FILE* err) {
  const QString from = designer.skinFolder().path();
  tellLeftOut(copySkin(designer.state(), designer.platform().disk, from, folder), err);
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
