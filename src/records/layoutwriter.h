// Walks a layout over the elements and composes the file's bytes.
#pragma once

#include <QByteArray>

#include "records/layout.h"

namespace veneerer {

QByteArray composeRecords(const Layout& layout);

}  // namespace veneerer
