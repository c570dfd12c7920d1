#include "numbers.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>
#include <random>

namespace {

using model::General;
using model::ReadNumber;

std::string Printed(const char* format, double value) {
  char text[512];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

// The readers of the output files know the digits and exponents that C prints.
TEST(Numbers, are_written_as_printf_writes_them) {
  std::vector<double> values = {0,        -0.0,  1,        100,       1234567,
                                12345678, 1e6,   1e7,      9999999.5, 0.0001,
                                0.00001,  1e-5,  1.5e-300, 1e300,     123456.75,
                                0.1,      1e-12, -99999,   5e-324,    std::numeric_limits<double>::max()};
  std::mt19937 random(7);
  for (int i = 0; i < 2000; ++i)
    values.push_back(
        std::ldexp(std::uniform_real_distribution<>(-1, 1)(random), static_cast<int>(random() % 200) - 100));
  for (const double v : values) {
    EXPECT_EQ(General(v), Printed("%.7g", v));
    EXPECT_EQ(model::Fixed(v, 6), Printed("%.6f", v));
    EXPECT_EQ(model::Exponential(v), Printed("%.1e", v));
  }
}

TEST(Numbers, that_are_not_finite_are_written_as_zero) {
  EXPECT_EQ(General(std::numeric_limits<double>::quiet_NaN()), "0");
  EXPECT_EQ(General(-std::numeric_limits<double>::infinity()), "0");
}

TEST(Numbers, are_read_whole_or_not_at_all) {
  const std::pair<const char*, double> good[] = {{"1e-12", 1e-12}, {"4e+05", 4e5}, {".5", .5},    {"7.", 7},
                                                 {"+3", 3},        {"-.25", -.25}, {"1E3", 1000}, {"6.0", 6},
                                                 {"1e-400", 0},    {"-1e-400", 0}, {"0.1e1", 1}};
  for (const auto& [text, value] : good) EXPECT_EQ(ReadNumber(text).value_or(-77), value) << text;
  for (const char* text : {"", "12abc", "1,5", "nan", "inf", "-inf", "NaN", "1e999", "-1e999", "0x10", "+-3",
                           "++3", "+", "-", ".", "e5", "1 2", "1e", "--1"})
    EXPECT_FALSE(ReadNumber(text).has_value()) << text;
}

}  // namespace
