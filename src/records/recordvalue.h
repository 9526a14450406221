// One value of a record file as the grammar sees it, before it is assigned to a field.
#pragma once

#include <QString>
#include <string_view>
#include <variant>

namespace veneerer {

/// `#NULL#`, a date or `#ERROR n#`: values that no field takes.
struct OddValue {
  QString text;
};

/// Empty, text, number, boolean, or one that no field takes.
using RecordValue = std::variant<std::monostate, QString, double, bool, OddValue>;

/// What an unquoted value is: a number when the whole of it, less surrounding blanks, has the form of one;
/// one of the #...# forms; else the text as it stands.
/// The bytes are those of the file, see fromCodePage().
RecordValue recognise(std::string_view unquoted);

/// The number that the text spells as a whole: an optional sign, digits with at most one point, an optional
/// exponent E or D. False when it is not of that form.
bool parseNumber(std::string_view text, double& number);
bool parseNumber(const QString& text, double& number);

}  // namespace veneerer
