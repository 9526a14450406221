// What differs between a Skin and what a save would make of it, or between two Skins. Differences are data;
// who shows them words them.
#pragma once

#include <QList>
#include <optional>

#include "forms/state.h"
#include "platform/skinfolder.h"
#include "records/textlines.h"

namespace veneerer {

struct Difference {
  enum class Kind : std::uint8_t {
    Line,          ///< of a record file or a cover file
    Content,       ///< of any other file, such as a picture
    OnlyInFirst,   ///< the second one has no such file
    OnlyInSecond,  ///< the first one has no such file
    Further,       ///< there are more in this file and behind it than are told
  };

  Kind kind;
  QString file;                           ///< in the Skin's folder, with forward slashes
  int line = 0;                           ///< of Line, counted from 1
  QString element = {};                   ///< its key; empty for a line that a human reads
  std::optional<Property> property = {};  ///< of the element
  std::optional<TextLine> before = {};    ///< nothing where that side has no such line
  std::optional<TextLine> after = {};     ///< at least one of the two is there
};

using Differences = QList<Difference>;

/// More are never told: a stranger's files may differ without end.
inline constexpr qsizetype kMostDifferences = 100'000;

/// What a save of the state would change in that folder, by file and line: each line whose bytes, its end
/// included, would be others. The folder is the first one. Throws RecordError where a file of a record's name
/// can't be read, as by a load.
Differences savedDifferences(State& state, const SkinFolder& folder);

/// What differs between two Skins as they lie on the disk: record and cover files by their lines, all other
/// files by their bytes. Of a file that doesn't read well the lines are compared as texts. Throws RecordError
/// as above.
Differences skinDifferences(const SkinFolder& first, const SkinFolder& second, const Screen& screen);

}  // namespace veneerer
