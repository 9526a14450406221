// What is wrong or risky in a Skin, as data. Whoever shows it knows how.
#pragma once

#include <QList>
#include <QString>
#include <cstdint>
#include <optional>

#include "elements/property.h"
#include "problems/remedy.h"

namespace veneerer {

/// The worst first. A hint tells what a touch screen suffers from, of a Skin that loads and saves well.
enum class FindingKind : std::uint8_t { Error, Warning, Hint };

struct Finding {
  FindingKind kind = FindingKind::Warning;
  /// A name in the Skin's folder, empty for the folder itself; the screen's name for an element that no
  /// record file holds.
  QString file;
  int line = 0;          ///< counted from 1; 0 for the file as a whole
  QString text;          ///< what is wrong; values in it are excerpts
  QString element = {};  ///< the key of what it is about, empty where that isn't known
  std::optional<Property> property = {};
  Remedies remedies = {};  ///< the likeliest first; whoever prints findings need not know them

  bool operator==(const Finding&) const = default;
};

using Findings = QList<Finding>;

}  // namespace veneerer
