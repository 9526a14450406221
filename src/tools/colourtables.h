// The Sections that each colour tool accepts. The sample Picture2 accepts those of the Section table.
#pragma once

namespace veneerer {

/// Text2, far fewer than the sample.
inline constexpr int kTypedColourSections[] = {1, 2, 3, 4, 5, 38, 59, 60, 68};

/// Option1.
inline constexpr int kShownColourSections[] = {1,  2,  3,  4,  5,  6,  7,  9,  10, 11, 34, 35, 38, 39,
                                               41, 42, 43, 46, 47, 49, 59, 60, 78, 79, 80, 86, 137};

/// Both buttons of Command2; the global one walks all of them.
inline constexpr int kCopiedColourSections[] = {
    1,   2,   3,   4,   6,   8,   9,   10,  12,  13,  16,  18,  19,  21,  22,  23,  24,  28,  29,
    30,  31,  33,  34,  35,  36,  37,  38,  40,  41,  42,  43,  44,  46,  49,  50,  51,  52,  53,
    55,  56,  59,  60,  64,  65,  66,  67,  69,  70,  71,  72,  73,  74,  75,  78,  79,  80,  83,
    86,  87,  88,  90,  91,  92,  93,  94,  97,  98,  102, 105, 112, 113, 117, 119, 121, 125, 126,
    129, 130, 131, 132, 133, 134, 135, 137, 149, 152, 155, 156, 158, 160, 163, 170, 171};

/// Copying colours reaches the menu's buttons up to this one only; those behind keep their colours.
inline constexpr int kLastColouredMenuButton = 9;

}  // namespace veneerer
