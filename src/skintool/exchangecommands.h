// The commands copy, recolour, pack and unpack.
#pragma once

#include <cstdio>

#include "designer/designer.h"
#include "skintool/arguments.h"

namespace veneerer {

// Each tells on err, one line a file, what of the Skin's folder isn't taken along, and throws ExchangeError.

/// Copies the Skin in hand as it is now into that folder.
void copyTo(Designer& designer, const QString& folder, std::FILE* err);

/// The same in other colours. Tells the pictures, too, that are copied as they are, and the colours to
/// replace that no place has.
void recolourTo(Designer& designer, const QString& folder, const Recolouring& recolouring, std::FILE* err);

/// Packs the Skin of the command line. The exit status.
int runPack(const Arguments& arguments, std::FILE* err);

/// Unpacks the archive of the command line. The exit status.
int runUnpack(const Arguments& arguments);

}  // namespace veneerer
