// Numbers as texts, the way the record files and the tool windows write and read them: full stop, no zero
// before a leading point, no thousands separators, whatever the user's locale is.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace veneerer {

/// The shortest form of up to 7 significant digits: "541.5", ".5", "1.234568E+07". A tie in the eighth digit
/// is rounded away from zero.
QString singleText(float number);

/// A number's plain form: whole numbers of 32 bits in full, others in up to 15 significant digits.
QString plainNumber(double number);

/// A whole number as lists and captions join it to a text: with a blank in the place of the sign, " 5" or
/// "-5".
QString signedNumber(int number);

/// The longest leading number of a text, blanks ignored; 0 when there is none. Exponents E and D count.
double leadingNumber(QStringView text);

/// leadingNumber as a Single; 0 when it is beyond a Single's range.
float leadingSingle(QStringView text);

/// leadingNumber rounded to the nearest whole number, halves to even; 0 when it is beyond 32 bits.
std::int32_t leadingWhole(QStringView text);

/// Rounds to the nearest whole number, halves to even; nothing when the result is beyond 32 bits.
std::optional<std::int32_t> toWhole(double number);

}  // namespace veneerer
