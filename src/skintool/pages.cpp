#include "skintool/pages.h"

#include <QFileInfo>

#include "preview/screensheet.h"
#include "preview/webpage.h"
#include "records/writefiles.h"
#include "skintool/render.h"

namespace veneerer {

void writeScreenSheet(Designer& designer, const QString& path) {
  const QFileInfo file(path);
  const Platform& platform = designer.platform();
  requireWritable(platform.disk, file.path(), {{file.fileName(), {}}});
  writePng(platform.disk, file.path(), file.fileName(), screenSheet(designer.state(), platform.screen));
}

void writeWebPage(Designer& designer, const QString& path) {
  const QFileInfo file(path);
  const Platform& platform = designer.platform();
  requireWritable(platform.disk, file.path(), {{file.fileName(), {}}});
  const QString skin = designer.state().form4.Combo3->text();
  writeFiles(platform.disk, file.path(),
             {{file.fileName(), webPage(designer.state(), platform.screen, skin)}});
}

}  // namespace veneerer
