// A colour as the record files hold it.
#pragma once

#include <QColor>
#include <cstdint>

namespace veneerer {

/// A number 0x00BBGGRR, or with the top bit set the number of a system colour. Numbers that no screen shows
/// are kept as they came.
class Colour {
public:
  constexpr Colour() = default;
  constexpr Colour(std::int32_t number)  // NOLINT(google-explicit-constructor): the tables hold numbers
      : number_(number) {}

  /// Alpha is dropped.
  static Colour of(const QColor& colour);

  constexpr std::int32_t number() const { return number_; }
  constexpr bool isSystem() const { return number_ < 0; }

  /// The colour itself: a system colour's own value, black for an unknown one. It loses whatever stands above
  /// its 24 bits.
  Colour plain() const;
  /// The colour to paint with; always opaque.
  QColor toQColor() const;

  constexpr bool operator==(const Colour&) const = default;

private:
  std::int32_t number_ = 0;
};

}  // namespace veneerer
