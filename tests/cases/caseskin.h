// A small Skin as a text: which record files it has, what differs in them, which pictures lie in it. So a
// case shows what matters to it and holds no thousand lines that don't.
#pragma once

#include <QString>

namespace veneerer::test {

/// Makes the Skin of that text in a folder that is there. The lines of the text, # for a comment:
///
/// - `record FILE [NAME]`: the file as a save of the built-in design writes it, under NAME when told
/// - `line FILE NUMBER TEXT`: with that line, counted from 1, replaced; "" for an empty one, \s for a blank
/// - `cut FILE NUMBER`: with only so many lines
/// - `bytes FILE TEXT`: a file of that one line
/// - `picture PATH WIDTHxHEIGHT #RRGGBB`: a bitmap, whatever the path ends in; an icon where that is .ico
///
/// Throws std::runtime_error for any other line.
void makeCaseSkin(const QString& text, const QString& folder);

}  // namespace veneerer::test
