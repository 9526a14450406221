// Texts from a stranger's files, made fit to stand on one plain line of a message or a terminal.
#pragma once

#include <QString>

namespace veneerer {

/// The text with "?" for every code point that isn't a visible character or a blank: control and format
/// characters of every plane (line ends, terminal codes, marks that turn the direction of writing), line and
/// paragraph separators, private and unassigned ones. Half a surrogate pair becomes U+FFFD.
QString printable(const QString& text);

/// How a value is quoted in a message: printable, cut behind that many code points.
QString excerpt(const QString& text, int most = 60);

}  // namespace veneerer
