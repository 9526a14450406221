// The inputs that are kept: what was found once, and few that reach far.
#pragma once

#include <QMap>
#include <QString>

#include "fuzz/target.h"

namespace veneerer::fuzz {

/// By the name of the file in corpus/TARGET. One that ends in ".hex" holds the input as hexadecimal digits.
QMap<QString, QByteArray> keptInputs(const Target& target);

}  // namespace veneerer::fuzz
