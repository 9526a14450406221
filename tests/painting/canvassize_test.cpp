#include "painting/canvassize.h"

#include <gtest/gtest.h>

#include <limits>

namespace veneerer {
namespace {

TEST(CanvasSize, IsTheWindowsWithinTheBounds) {
  Switchboard board;
  Form1 form{board};
  const auto sizeOf = [&](double width, double height) {
    form.setWidth(static_cast<float>(width * 15));
    form.setHeight(static_cast<float>(height * 15));
    return canvasSize(form, Screen());
  };
  EXPECT_EQ(sizeOf(1024.4, 767.6).pixels, QSize(1024, 768));
  EXPECT_EQ(sizeOf(8192, 6144).pixels, QSize(8192, 6144));
  EXPECT_FALSE(sizeOf(8192, 6144).isCut);
  EXPECT_TRUE(sizeOf(8192, 6145).isCut);
  for (const double odd : {16384.0, 1e9, std::numeric_limits<double>::infinity()}) {
    const CanvasSize size = sizeOf(odd, odd);
    EXPECT_TRUE(size.isCut) << odd;
    EXPECT_EQ(size.pixels, QSize(16384, 3072)) << odd;
  }
  EXPECT_EQ(sizeOf(10, 1e9).pixels, QSize(10, 16384));
  EXPECT_EQ(sizeOf(-5, std::numeric_limits<double>::quiet_NaN()).pixels, QSize(1, 1));
}

}  // namespace
}  // namespace veneerer
