#include "images/cjpeg.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <type_traits>

extern "C" {
#include <jpeglib.h>
}

namespace veneerer {

namespace {

constexpr int kComponents = 3;

// Everything that is alive while the library may jump back. It holds plain data only: a jump runs no
// destructors.
struct Session {
  jpeg_compress_struct compressor;
  jpeg_error_mgr errors;
  std::jmp_buf failed;
  char message[JMSG_LENGTH_MAX];
  unsigned char* bytes;  // made and grown by the library with malloc
  unsigned long size;
};
static_assert(std::is_trivially_destructible_v<Session>);

void fail(j_common_ptr common) {
  auto* session = static_cast<Session*>(common->client_data);
  common->err->format_message(common, session->message);
  std::longjmp(session->failed, 1);
}

void stayQuiet(j_common_ptr) {}

void describe(jpeg_compress_struct& c, const cImage& image, int quality,
              const std::array<int, 6>& frequencies) {
  c.image_width = static_cast<JDIMENSION>(image.width());
  c.image_height = static_cast<JDIMENSION>(image.height());
  c.input_components = 4;
  // The bytes of 0xffRRGGBB in memory.
  c.in_color_space = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB;
  jpeg_set_defaults(&c);
  jpeg_set_quality(&c, quality, TRUE);
  for (std::size_t i = 0; i < kComponents; ++i) {
    c.comp_info[i].h_samp_factor = frequencies[2 * i];
    c.comp_info[i].v_samp_factor = frequencies[2 * i + 1];
  }
}

void writeRows(jpeg_compress_struct& c, const cImage& image) {
  jpeg_start_compress(&c, TRUE);
  while (c.next_scanline < c.image_height) {
    // The library's type is not const, but it only reads.
    auto* row = reinterpret_cast<JSAMPLE*>(const_cast<QRgb*>(image.row(static_cast<int>(c.next_scanline))));
    jpeg_write_scanlines(&c, &row, 1);
  }
  jpeg_finish_compress(&c);
}

// False when the library gave up, with its message in the session. No object with a destructor lives here.
bool compress(Session& session, const cImage& image, int quality, const std::array<int, 6>& frequencies) {
  session.compressor.err = jpeg_std_error(&session.errors);
  session.errors.error_exit = fail;
  session.errors.output_message = stayQuiet;
  session.compressor.client_data = &session;
  if (setjmp(session.failed) != 0) return false;
  jpeg_create_compress(&session.compressor);
  jpeg_mem_dest(&session.compressor, &session.bytes, &session.size);
  describe(session.compressor, image, quality, frequencies);
  writeRows(session.compressor, image);
  return true;
}

}  // namespace

bool cJpeg::setQuality(int quality) {
  if (quality < 1 || quality > 100) return false;
  quality_ = quality;
  return true;
}

bool cJpeg::SetSamplingFrequencies(int h1, int v1, int h2, int v2, int h3, int v3) {
  const std::array<int, 6> asked = {h1, v1, h2, v2, h3, v3};
  const bool areInRange =
      std::all_of(asked.begin(), asked.end(), [](int f) { return f >= 1 && f <= MAX_SAMP_FACTOR; });
  if (!areInRange || h1 * v1 + h2 * v2 + h3 * v3 > C_MAX_BLOCKS_IN_MCU) return false;
  frequencies_ = asked;
  return true;
}

JpegResult cJpeg::encode() const {
  if (image_.isEmpty()) return {{}, QStringLiteral("There is no picture to encode.")};
  Session session{};
  const bool isDone = compress(session, image_, quality_, frequencies_);
  JpegResult result;
  if (isDone)
    result.bytes =
        QByteArray(reinterpret_cast<const char*>(session.bytes), static_cast<qsizetype>(session.size));
  else
    result.error = QString::fromLatin1(session.message);
  jpeg_destroy_compress(&session.compressor);
  std::free(session.bytes);
  return result;
}

}  // namespace veneerer
