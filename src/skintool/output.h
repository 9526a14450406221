// Where the batch tool's words go.
#pragma once

#include <QByteArray>
#include <cstdio>

namespace veneerer {

/// Throws std::runtime_error when not all of it can be written.
void print(std::FILE* out, const QByteArray& text);

}  // namespace veneerer
