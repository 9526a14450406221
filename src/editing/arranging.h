// Puts several elements in line. Their places count on the screen, whatever container holds them; the
// properties are set as such, so no family's limits take part.
#pragma once

#include <optional>
#include <vector>

#include "elements/element.h"

namespace veneerer {

/// What lines up with the first element.
enum class AlignTo { Left, Right, Top, Bottom, Centre, Middle };
/// Along which way the gaps become equal.
enum class Along { Across, Down };
/// Which sides become those of the first element.
enum class Sides { Width, Height, Both };

/// The words of scripts: "left", "across", "both"; nothing for any other.
std::optional<AlignTo> alignToNamed(QStringView word);
std::optional<Along> alongNamed(QStringView word);
std::optional<Sides> sidesNamed(QStringView word);

/// Moves all but the first one into line with it.
void alignElements(const std::vector<Element*>& elements, AlignTo line);

/// Makes the gaps between neighbours equal; the outermost two stay. Fewer than three stay as they are.
void distributeElements(const std::vector<Element*>& elements, Along along);

/// Gives all but the first one its width, its height or both.
void makeSameSize(const std::vector<Element*>& elements, Sides sides);

}  // namespace veneerer
