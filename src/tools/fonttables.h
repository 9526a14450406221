// The Sections that the font and label copies accept. The single edits accept those of the Section table.
#pragma once

namespace veneerer {

/// Both buttons of Command1.
inline constexpr int kFontSizeSections[] = {13,  16,  21,  22,  30,  31,  33,  36,  38,  44,  49,  50,  51,
                                            52,  53,  65,  83,  87,  88,  91,  92,  93,  102, 112, 113, 117,
                                            126, 130, 131, 132, 133, 138, 149, 153, 156, 158, 160, 170, 171};

/// Both buttons of Command4.
inline constexpr int kFontTypeSections[] = {13,  16,  21,  22,  30,  31,  33,  36,  38,  44,  49,  50,  51,
                                            52,  53,  65,  83,  87,  88,  91,  92,  93,  102, 112, 113, 117,
                                            126, 130, 131, 132, 133, 153, 156, 158, 160, 170, 171};

/// Command11: the members from 0 to last take the alignment.
struct AlignedLabels {
  int section;
  int last;
};

inline constexpr AlignedLabels kAlignedLabels[] = {{112, 27}, {113, 27}, {117, 9},
                                                   {126, 9},  {170, 27}, {171, 27}};

/// "Show Label Background (Album Cover)" reaches the covers up to this one only.
inline constexpr int kLastCoverWithBackground = 20;

}  // namespace veneerer
