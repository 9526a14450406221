// What becomes of a text that is saved into a record file and loaded again. The grammar has no quotes that a
// save would write and no escapes, so not every text comes back.
//
// Each function gives a sentence for a finding, or an empty text when no harm is done. "what" names the text
// in it: "caption", "font name".
#pragma once

#include <QString>

namespace veneerer {

/// The text with "?" for every character that the code page lacks.
QString asSaved(const QString& text);

/// What moves or swallows later values of the file: a line end, a comma, a double quote at the start. A label
/// line, which is dropped on reading, suffers from nothing else.
QString lineDamage(const QString& what, const QString& text);

/// What a save and the next load do to a text of a live element.
QString textDamage(const QString& what, const QString& text);

/// A text as read from a file that was written there in UTF-8.
QString utf8Damage(const QString& what, const QString& text);

/// A text as read from a file that holds a byte for which the code page has no character.
QString undefinedByteDamage(const QString& what, const QString& text);

}  // namespace veneerer
