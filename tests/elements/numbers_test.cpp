#include "elements/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace veneerer;

TEST(Numbers, SinglesInTheirShortestForm) {
  const struct {
    float number;
    const char* text;
  } table[] = {
      {0.0f, "0"},
      {-0.0f, "0"},
      {5415.0f, "5415"},
      {1234.5f, "1234.5"},
      {0.5f, ".5"},
      {-0.25f, "-.25"},
      {0.1f, ".1"},
      {1234567.0f, "1234567"},
      {-1234567.0f, "-1234567"},
      // Ties and more than seven digits.
      {4570.0625f, "4570.063"},
      {-4570.0625f, "-4570.063"},
      {16777216.0f, "1.677722E+07"},
      {999999.97f, "1000000"},
      {9999999.0f, "9999999"},
      // Where the exponent begins.
      {10000000.0f, "1E+07"},
      {12345678.0f, "1.234568E+07"},
      {0.0000001f, ".0000001"},
      {0.00000001f, "1E-08"},
      {0.0123456f, ".0123456"},
      {0.01234567f, "1.234567E-02"},
      {0.000123f, ".000123"},
      {0.00012345f, "1.2345E-04"},
      {std::numeric_limits<float>::max(), "3.402823E+38"},
      {std::numeric_limits<float>::denorm_min(), "1E-45"},
  };
  for (const auto& row : table) EXPECT_EQ(singleText(row.number), QLatin1String(row.text)) << row.number;
}

TEST(Numbers, PlainFormAndSignBlank) {
  EXPECT_EQ(plainNumber(-2147483633.0), u"-2147483633");
  EXPECT_EQ(plainNumber(16777215.0), u"16777215");
  EXPECT_EQ(plainNumber(1.5), u"1.5");
  EXPECT_EQ(plainNumber(0.1), u".1");
  EXPECT_EQ(plainNumber(123456789012345.0), u"123456789012345");
  EXPECT_EQ(plainNumber(0.9999999999999999), u"1");
  EXPECT_EQ(plainNumber(1e15), u"1E+15");
  EXPECT_EQ(plainNumber(-0.0), u"0");
  EXPECT_EQ(signedNumber(5), u" 5");
  EXPECT_EQ(signedNumber(0), u" 0");
  EXPECT_EQ(signedNumber(-5), u"-5");
}

TEST(Numbers, LongestLeadingNumber) {
  const struct {
    const char* text;
    double number;
  } table[] = {
      {"", 0},
      {"   ", 0},
      {"12", 12},
      {" 1 2 3 ", 123},
      {"12pt", 12},
      {"\t-7.5 x", -7.5},
      {"+.5", .5},
      {"-.25.5", -.25},
      {"5.", 5},
      {".", 0},
      {"-", 0},
      {"--5", 0},
      {"abc", 0},
      {"&H10", 0},
      {"0x10", 0},
      {"inf", 0},
      {"-nan", 0},
      {"1E", 1},
      {"1E+", 1},
      {"1e2", 100},
      {"1D2", 100},
      {"1d-1", .1},
      {"12days", 12},
      {"1E2.5", 100},
      {"1,5", 1},
      {"1E-400", 0},
      {"\xbd"
       "5",
       0},
  };
  for (const auto& row : table)
    EXPECT_EQ(leadingNumber(QString::fromLatin1(row.text)), row.number) << row.text;
}

TEST(Numbers, OutOfRangeIsNoNumberAndHalvesGoToEven) {
  EXPECT_EQ(leadingSingle(u"1E39"), 0.0f);
  EXPECT_EQ(leadingSingle(u"1E400"), 0.0f);
  EXPECT_EQ(leadingSingle(u"3.402823E+38"), 3.402823E+38f);
  EXPECT_EQ(leadingWhole(u"2147483648"), 0);
  EXPECT_EQ(leadingWhole(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(toWhole(2147483647.0), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(toWhole(2147483647.5), std::nullopt);
  EXPECT_EQ(toWhole(std::nan("")), std::nullopt);

  EXPECT_EQ(toWhole(0.5), 0);
  EXPECT_EQ(toWhole(1.5), 2);
  EXPECT_EQ(toWhole(-2.5), -2);
  EXPECT_EQ(leadingWhole(u" 3.5 "), 4);
}
