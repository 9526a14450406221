// Texts from a stranger's files, made fit to stand on one plain line of a message or a terminal.
#pragma once

#include <QString>

namespace veneerer {

/// Whether the code point is a visible character or a blank. Not so are control and format characters of
/// every plane (line ends, terminal codes, marks that turn the direction of writing), line and paragraph
/// separators, private and unassigned ones.
bool isPrintable(char32_t codePoint);

/// The text with "?" for every code point that isn't printable. Half a surrogate pair becomes U+FFFD.
QString printable(const QString& text);

/// How a value is quoted in a message: printable, cut behind that many code points.
QString excerpt(const QString& text, int most = 60);

/// As much of a text as the windows show of it, in a box, a note, a row of a list: printable, and at most
/// 1,000 code points, of which the last is "…" where something is cut.
QString shownText(const QString& text);

}  // namespace veneerer
