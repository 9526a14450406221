// Differences in words.
#pragma once

#include <QString>

#include "comparison/comparison.h"

namespace veneerer {

/// What one side of a differing line holds, printable. Numbers stand between blanks in the files, which are
/// shown, in quotes, only where they are all that differs; the line's end only where nothing else does.
QString lineWords(const std::optional<TextLine>& line, const std::optional<TextLine>& other);

/// The file that one side of the difference names, where it may be a picture: the file itself, or what an
/// image reference leads to. Empty where it can't be one.
QString picturePath(const Difference& difference, const std::optional<TextLine>& side,
                    const SkinFolder& folder);

}  // namespace veneerer
