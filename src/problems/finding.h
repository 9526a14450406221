// What a check finds in a Skin, as data. Whoever shows it knows how.
#pragma once

#include <QList>
#include <QString>
#include <cstdint>

namespace veneerer {

/// The worst first.
enum class FindingKind : std::uint8_t { Error, Warning };

struct Finding {
  FindingKind kind = FindingKind::Warning;
  QString file;  ///< its name in the Skin's folder, empty for the folder itself
  int line = 0;  ///< counted from 1; 0 for the file as a whole
  QString text;  ///< what is wrong; values in it are excerpts
};

using Findings = QList<Finding>;

}  // namespace veneerer
