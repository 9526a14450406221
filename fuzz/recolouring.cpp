// Picture files in turned colours. The first three bytes tell the turn.
#include <QTemporaryDir>

#include "elements/require.h"
#include "fuzz/smallpictures.h"
#include "fuzz/target.h"
#include "images/picturedecoding.h"
#include "images/pictureformat.h"
#include "recolouring/turnedpicture.h"
#include "support/files.h"

namespace veneerer::fuzz {

namespace {

constexpr qsizetype kTurnBytes = 3;

ColourTurn turnOf(const QByteArray& bytes) {
  if (bytes.size() < kTurnBytes) return {};
  return {bytes[0] * 360 / 128, bytes[1] * 100 / 128, bytes[2] * 100 / 128};
}

// Only a JPEG file is encoded anew, and a bitmap may be turned whose pixels hold no colour.
void keepsAllButColours(const QByteArray& before, const QByteArray& after) {
  require(formatOf(before) == formatOf(after), "a turned picture keeps its format");
  const QImage old = decodeExactly(before);
  const QImage made = decodeExactly(after);
  require(made.size() == old.size(), "a turned picture keeps its size");
  const bool isGif = formatOf(before) == PictureFormat::Gif;
  require(!isGif || before.size() == after.size(), "a turned GIF file keeps its length");
}

void run(const QByteArray& input) {
  static const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("picture.bmp"));
  const QByteArray picture = input.mid(kTurnBytes);
  test::writeBytes(path, picture);
  const ColourTurn turn = turnOf(input);
  const TurnedPicture made = turnedPicture(path, turn, [] {});
  require(!made.bytes || made.fault.isEmpty(), "what has a fault isn't turned");
  require(!made.bytes || !turn.isNothing() || formatOf(picture) == PictureFormat::Bitmap,
          "nothing turned changes nothing");
  if (made.bytes) keepsAllButColours(picture, *made.bytes);
}

QList<QByteArray> seeds() {
  QList<QByteArray> inputs;
  for (const QByteArray& picture : smallPictures()) inputs << "\x20\x40\xE0" + picture;
  return inputs;
}

}  // namespace

const Target kRecolouring = {"recolouring", 8192, run, seeds, pictureWords};

}  // namespace veneerer::fuzz
