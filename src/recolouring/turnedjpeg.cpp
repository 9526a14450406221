#include "recolouring/turnedjpeg.h"

#include "images/cjpeg.h"
#include "images/jpegmaking.h"

namespace veneerer {

std::optional<QByteArray> turnedJpeg(const QByteArray& jpeg, QImage image, PixelTurner& turner,
                                     const Step& step) {
  if (!turner.turn(image, step)) return std::nullopt;
  cImage pixels;
  pixels.CopyPicture(image);
  const JpegMaking making = jpegMaking(jpeg);
  cJpeg encoder;
  encoder.setQuality(making.quality);
  const auto& [h1, v1, h2, v2, h3, v3] = making.sampling;
  // One that the encoder can't have keeps its own.
  encoder.SetSamplingFrequencies(h1, v1, h2, v2, h3, v3);
  encoder.SampleImage(pixels);
  step();
  return encoder.encode().bytes;
}

}  // namespace veneerer
