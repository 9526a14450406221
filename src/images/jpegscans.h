// How often a JPEG file goes over its picture.
#pragma once

#include <QByteArray>

namespace veneerer {

/// The number of scans in a JPEG file, damaged or not. A progressive picture is sent in some ten of them;
/// each costs a decoder a walk over the whole picture, however few bytes it has.
int countJpegScans(const QByteArray& jpeg);

}  // namespace veneerer
