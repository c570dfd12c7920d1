#include <gtest/gtest.h>

#include <limits>

#include "core/text.h"
#include "platform/runtime_error.h"

namespace tarnvik {
namespace {

TEST(Val, reads_the_number_at_the_start) {
  const struct {
    const char* text;
    double value;
  } rows[] = {
      {"", 0},
      {"   ", 0},
      {"abc", 0},
      {"12", 12},
      {"  12.5 kg", 12.5},
      {"-3", -3},
      {"+4", 4},
      {"- 4", 0},
      {".5", 0.5},
      {"5.", 5},
      {".", 0},
      {"1e3", 1000},
      {"1e", 1},
      {"1e+", 1},
      {"1d5", 1},
      {"0x10", 0},
      {"nan", 0},
      {"inf", 0},
      {"-inf", 0},
      {"1,5", 1},
      {"1.4.1", 1.4},
      {"1 2", 1},
      {"1e-400", 0},
      {"--2", 0},
      {"4e+05", 400000},
      {"1e999", std::numeric_limits<double>::max()},
      {"-1e999", -std::numeric_limits<double>::max()},
  };
  for (const auto& row : rows) EXPECT_EQ(Val(row.text), row.value) << '"' << row.text << '"';
}

TEST(Int16, rounds_half_to_even_and_overflows) {
  EXPECT_EQ(Int16(0.5), 0);
  EXPECT_EQ(Int16(1.5), 2);
  EXPECT_EQ(Int16(2.5), 2);
  EXPECT_EQ(Int16(-1.5), -2);
  EXPECT_EQ(Int16(32767.4), 32767);
  for (const double bad : {32767.5, -32769.0, 1e308, 99999.0}) {
    try {
      Int16(bad);
      ADD_FAILURE() << bad;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number, 6);
    }
  }
}

TEST(NumberText, is_the_shortest_form) {
  EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(NumberText(1969.0), "1969");
  EXPECT_EQ(NumberText(-2.5), "-2.5");
}

TEST(CatchText, has_one_to_six_decimals) {
  const struct {
    double value;
    const char* text;
  } rows[] = {{0, "0.0"},
              {12, "12.0"},
              {128102.1357, "128102.1357"},
              {0.1234567, "0.123457"},
              {-0.0000001, "0.0"},
              {1e15, "1000000000000000.0"}};
  for (const auto& row : rows) EXPECT_EQ(CatchText(row.value), row.text);
}

TEST(Tokens, walk_over_words_between_blanks) {
  EXPECT_EQ(TokenFirst("   "), "");
  EXPECT_EQ(TokenNext("   "), "");
  EXPECT_EQ(TokenFirst(" 1  2 "), "1");
  EXPECT_EQ(TokenNext(" 1  2 "), "2");
  EXPECT_EQ(TokenNext(" 1  2 "), "");
  EXPECT_EQ(TokenNext(" 1  2 "), "");
  EXPECT_EQ(TokenFirst("a\tb c"), "a\tb");
  EXPECT_EQ(TokenNext("a\tb c"), "c");
  EXPECT_EQ(TokenNext("a\tb c"), "");
  const std::string line = std::string(70000, ' ') + "x y";
  EXPECT_EQ(TokenFirst(line), "x");
  EXPECT_EQ(TokenNext(line), "y");
}

}  // namespace
}  // namespace tarnvik
