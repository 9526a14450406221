#include "images/jpegscans.h"

#include "images/jpegsegments.h"

namespace veneerer {

int countJpegScans(const QByteArray& jpeg) {
  constexpr int kStartOfScan = 0xDA;
  int scans = 0;
  JpegSegments segments(jpeg);
  while (segments.next())
    if (segments.code() == kStartOfScan) ++scans;
  return scans;
}

}  // namespace veneerer
