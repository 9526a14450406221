// Which fields and commands of Form6 serve a Section.
#pragma once

#include <cstdint>

namespace veneerer {

enum class ToolField : std::uint8_t {
  Caption,         ///< Text1
  Size,            ///< Text3
  Shape,           ///< Combo1
  Style,           ///< Combo2
  Gradient,        ///< Combo4
  Alignment,       ///< Combo5
  Colour,          ///< the colour sample Picture2
  TypedColour,     ///< Text2, which reaches far fewer than the sample
  ShownColour,     ///< Option1
  CopiedColours,   ///< Command2; the global one walks all of them
  FontSize,        ///< Text4
  ShownFontSize,   ///< Text4, which a click fills
  CopiedFontSize,  ///< Command1, likewise
  FontName,        ///< List1
  CopiedFontName,  ///< Command4, likewise
  FontDialog,      ///< Command14
  Place,           ///< Text9, which a click fills
};

/// A set of fields.
class ToolFields {
public:
  constexpr ToolFields() = default;
  constexpr ToolFields(ToolField field)
      : bits_(1u << static_cast<unsigned>(field)) {
  }  // NOLINT(google-explicit-constructor): a field is a set of one

  constexpr bool has(ToolField field) const { return (bits_ & ToolFields(field).bits_) != 0; }
  constexpr ToolFields without(ToolFields others) const { return fromBits(bits_ & ~others.bits_); }
  friend constexpr ToolFields operator|(ToolFields left, ToolFields right) {
    return fromBits(left.bits_ | right.bits_);
  }

private:
  static constexpr ToolFields fromBits(std::uint32_t bits) {
    ToolFields fields;
    fields.bits_ = bits;
    return fields;
  }

  std::uint32_t bits_ = 0;
};

}  // namespace veneerer
