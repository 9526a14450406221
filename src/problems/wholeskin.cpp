#include "problems/wholeskin.h"

#include <QFileInfo>

#include "elements/numbers.h"
#include "elements/printable.h"
#include "forms/windowframe.h"
#include "painting/canvassize.h"
#include "problems/leftbehind.h"
#include "problems/rawvalues.h"
#include "problems/texts.h"
#include "records/coverfile.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"
#include "skin/catalogue.h"

namespace veneerer {

namespace {

const QString kResolution = QStringLiteral("resolution.ini");

/// The lines of that file that hold the width and the height.
constexpr int kResolutionLine = 4;

QByteArray bytesOf(const SkinFolder& folder, const QString& name) {
  try {
    return recordFileIfThere(folder.file(name)).value_or(QByteArray());
  } catch (const RecordError&) {
    return {};
  }
}

QString sizeText(QSize size) {
  return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

/// Whether a canvas of so many pixels stands for that resolution: it was typed, or loaded, which adds the
/// frame of a window.
bool stands(QSize canvas, QSize resolution, const Screen& screen) {
  const int title = static_cast<int>(std::lround(kFrameTwips / screen.twipsPerPixelY()));
  return canvas == resolution || canvas == resolution + QSize(kFramePixels, title);
}

QSize sizeOf(const QString& width, const QString& height) {
  return {leadingWhole(width), leadingWhole(height)};
}

QSize resolutionInHand(const State& state) {
  return sizeOf(state.form4.Text1[0].text(), state.form4.Text1[1].text());
}

QSize savedResolution(const SkinFolder& folder) {
  RecordReader reader(bytesOf(folder, kResolution));
  QString values[kResolutionLine + 1];
  for (QString& value : values) {
    if (reader.atEnd()) return {};
    value = valueText(reader.readValue());
  }
  return sizeOf(values[kResolutionLine - 1], values[kResolutionLine]);
}

Findings resolutionFindings(const State& state, const Screen& screen) {
  const QSize canvas = canvasSize(state.form1, screen).pixels;
  const QSize resolution = resolutionInHand(state);
  if (resolution.isEmpty() || stands(canvas, resolution, screen)) return {};
  const auto set = [&](int axis, int pixels) {
    return RemedyChange{state.form4.Text1[axis].key(), Property::Text, QString::number(pixels)};
  };
  const Remedy remedy{RemedyKind::SetResolution,
                      ProblemTexts::tr("Set the resolution to %1").arg(sizeText(canvas)),
                      {set(0, canvas.width()), set(1, canvas.height())}};
  return {{FindingKind::Warning,
           kResolution,
           kResolutionLine,
           ProblemTexts::tr("the resolution is %1, the canvas %2 pixels")
               .arg(sizeText(resolution), sizeText(canvas)),
           state.form4.Text1[0].key(),
           Property::Text,
           {remedy}}};
}

Findings twinFindings(State& state, const SkinFolder& folder) {
  Findings findings;
  for (const SaveEntry& entry : saveOrder()) {
    if (!entry.name) continue;
    const Layout layout = entry.layout(state);
    if (const auto found = twinFinding(folder, layout.fileName(), savedName(entry, layout)))
      findings.append(*found);
  }
  return findings;
}

// Until the next save the folder still has the resolution that its cover files were made for.
Findings coverFindings(const State& state, const SkinFolder& folder, const Screen& screen) {
  const QSize saved = savedResolution(folder);
  const QSize canvas = canvasSize(state.form1, screen).pixels;
  if (saved.isEmpty() || stands(canvas, saved, screen)) return {};
  const QString inHand = coverFileName(state.form4.Text2->text());
  Findings findings;
  for (const QString& name : folder.coverFiles())
    if (name != inHand)
      findings.append(
          {FindingKind::Hint, name, 0,
           ProblemTexts::tr("its covers are placed for %1 pixels: no rescale changes a cover file")
               .arg(sizeText(saved))});
  return findings;
}

}  // namespace

std::optional<Finding> twinFinding(const SkinFolder& folder, const QString& read, const QString& written) {
  const bool areThere = QFileInfo(folder.file(read)).isFile() && QFileInfo(folder.file(written)).isFile();
  if (!areThere || bytesOf(folder, read) == bytesOf(folder, written)) return std::nullopt;
  const Remedy remedy{RemedyKind::CopyTwin,
                      ProblemTexts::tr("Copy %1 over it: writes %2").arg(written, read),
                      {},
                      folder.file(written),
                      read};
  return Finding{FindingKind::Warning,
                 read,
                 0,
                 ProblemTexts::tr("differs from %1, which a save writes and no load reads").arg(written),
                 {},
                 {},
                 {remedy}};
}

Findings wholeSkinFindings(State& state, const SkinFolder& folder, const Screen& screen) {
  return resolutionFindings(state, screen) + twinFindings(state, folder) +
         coverFindings(state, folder, screen) + leftBehindFindings(state, folder);
}

}  // namespace veneerer
