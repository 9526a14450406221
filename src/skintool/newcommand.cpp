#include "skintool/newcommand.h"

#include "elements/printable.h"
#include "looks/looks.h"
#include "skintool/output.h"

namespace veneerer {

int runNew(const Arguments& arguments, std::FILE* out, std::FILE* err) {
  if (!arguments.wish.look) {
    for (const looks::Look* look : looks::allLooks()) print(out, QByteArray(look->name) + '\n');
    return 0;
  }
  Disk disk;
  for (const QString& note : looks::makeSkin(disk, arguments.to, arguments.wish))
    print(err, printable(note).toUtf8() + '\n');
  return 0;
}

}  // namespace veneerer
