// Why a record file most likely can't be read: what ends the walk stands often some lines behind its cause.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "records/layout.h"

namespace veneerer {

/// Where the walk over a file stumbled.
struct Stumble {
  const Layout& layout;
  /// The lines of the rows read so far, as in Loading; the last one is that of the value which failed.
  const std::vector<int>& lines;
  const QByteArray& bytes;  ///< the whole file
  bool isAtEnd;             ///< no value is left
};

/// The likeliest cause as a sentence without its full stop: a comma or a quote on an earlier line, a line too
/// many or too few, a file that is cut off. Empty where nothing speaks for one.
QString likelyCause(const Stumble& stumble);

}  // namespace veneerer
