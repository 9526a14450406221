#include "skintool/render.h"

#include <future>

#include "images/fastpng.h"
#include "images/pictureencoding.h"
#include "painting/canvaspainter.h"
#include "preview/screenpicture.h"
#include "records/recorderror.h"
#include "records/writefiles.h"

namespace veneerer {

namespace {

QString fileName(int entry, const QString& name) {
  return QStringLiteral("%1 %2.png").arg(entry, 2, 10, QLatin1Char('0')).arg(name);
}

void writeBytes(Disk& disk, const QString& folder, const QString& name, const QByteArray& png) {
  if (png.isEmpty()) throw RecordError(name, 0, {}, {}, QStringLiteral("the picture can't be written"));
  writeFiles(disk, folder, {{name, png}});
}

/// Encodes and writes pictures while the next one is painted.
class PngWriter {
public:
  PngWriter(Disk& disk, const QString& folder) : disk_(disk), folder_(folder) {}

  void start(const QString& name, const QImage& image) {
    finish();
    writing_ = std::async(std::launch::async,
                          [this, name, image] { writeBytes(disk_, folder_, name, fastPng(image)); });
  }
  /// Throws what the last picture failed with.
  void finish() {
    if (writing_.valid()) writing_.get();
  }

private:
  Disk& disk_;
  QString folder_;
  std::future<void> writing_;
};

}  // namespace

QImage renderScreen(Designer& designer, CanvasPainter& painter, int entry) {
  State& state = designer.state();
  state.form6.Combo6->select(entry);
  return canvasPicture(state.form1, designer.platform().screen, painter);
}

void renderScreens(Designer& designer, const QString& folder, const QStringList& only) {
  Disk& disk = designer.platform().disk;
  makeTarget(folder, disk);
  const QStringList entries = designer.state().form6.Combo6->list();
  std::vector<int> chosen;
  std::vector<NewFile> files;
  for (int entry = 0; entry < entries.size(); ++entry) {
    if (!only.isEmpty() && !only.contains(entries[entry])) continue;
    chosen.push_back(entry);
    files.push_back({fileName(entry, entries[entry]), {}});
  }
  requireWritable(disk, folder, std::move(files));
  CanvasPainter painter;
  PngWriter writer(disk, folder);
  for (const int entry : chosen)
    writer.start(fileName(entry, entries[entry]), renderScreen(designer, painter, entry));
  writer.finish();
}

void requireWritable(Disk& disk, const QString& folder, std::vector<NewFile> files) {
  const FileReplacement replacement(disk, folder, std::move(files));
  if (replacement.refusal()) throw WriteRefused(*replacement.refusal());
}

void writePng(Disk& disk, const QString& folder, const QString& name, const QImage& image) {
  writeBytes(disk, folder, name, encodePicture(image, "PNG"));
}

void makeTarget(const QString& folder, Disk& disk) {
  if (!disk.makeFolder(folder).isEmpty())
    throw RecordError(folder, 0, {}, {}, QStringLiteral("the folder can't be made"));
}

}  // namespace veneerer
