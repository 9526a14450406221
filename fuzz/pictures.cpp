// Picture files through the way that the program loads them.
#include <QTemporaryDir>

#include "elements/require.h"
#include "fuzz/smallpictures.h"
#include "fuzz/target.h"
#include "images/jpegmaking.h"
#include "images/picture.h"
#include "images/picturecopies.h"
#include "images/picturedecoding.h"
#include "support/files.h"

namespace veneerer::fuzz {

namespace {

void showsWithinBounds(const QString& path) {
  PictureStore store;
  const Picture picture = store.load(path);
  const QImage small = picture.thumbnail({40, 30});
  require(small.width() <= 40 && small.height() <= 30, "a thumbnail is no larger than it is to be");
  picture.shown({100, 100});
  picture.shownCorner({100, 100});
  const QImage whole = picture.image();
  require(whole.isNull() || !picture.isNull(), "only what a head tells is decoded");
  require(pixelsOf(whole.size()) <= kMostPicturePixels, "no picture has more pixels than it may");
  require(store.decodedBytes() <= 512LL * 1024 * 1024, "the pixels that are kept have a bound");
  require(picture.isNull() || picture.size() == whole.size(), "a decoded picture knows its size");
}

void costsWhatItTells(const QString& path) {
  const PictureCost cost = costOfPicture(path);
  require(cost.work >= 0, "decoding costs something");
  const QImage image = decodePicture(path);
  require(image.isNull() || cost.canBeDecoded, "what is beyond the bounds isn't decoded");
}

void run(const QByteArray& input) {
  static const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("picture"));
  test::writeBytes(path, input);
  costsWhatItTells(path);
  showsWithinBounds(path);
  const JpegMaking making = jpegMaking(input);
  require(making.quality >= 1 && making.quality <= 100, "a quality is one");
}

}  // namespace

const Target kPictures = {"pictures", 8192, run, smallPictures, pictureWords};

}  // namespace veneerer::fuzz
