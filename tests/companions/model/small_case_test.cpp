// The small case against its known results, number by number and word by word.

#include <gtest/gtest.h>

#include <filesystem>

#include "case_runs.h"
#include "numbers.h"

namespace {

// Two parameters of the survey's curve, and what hangs on them, are hardly known by these data.
bool HardlyKnown(const std::string& context) {
  return context.find("log_beta_SURVEY") != std::string::npos ||
         context.find("log_a50_SURVEY") != std::string::npos;
}

bool DiffersFromBuildToBuild(const std::string& line) {
  return line.find("maximum gradient") != std::string::npos ||
         line.find("Maximum gradient") != std::string::npos;
}

void CompareNumber(const std::string& found, const std::string& wanted, double relative,
                   const std::string& where) {
  const auto number = model::ReadNumber(found);
  const auto known = model::ReadNumber(wanted);
  ASSERT_EQ(number.has_value(), known.has_value()) << where;
  if (!known)
    EXPECT_EQ(found, wanted) << where;
  else
    EXPECT_NEAR(*number, *known, std::max(relative * std::abs(*known), 1e-6)) << where;
}

void CompareText(const std::string& found, const std::string& wanted, const std::string& file) {
  const std::vector<std::string> lines = Lines(found);
  const std::vector<std::string> known = Lines(wanted);
  ASSERT_GE(lines.size(), known.size()) << file;
  std::string before;
  for (std::size_t i = 0; i < known.size(); ++i) {
    const std::string where = file + " line " + std::to_string(i + 1) + ": " + known[i];
    const std::vector<std::string> words = Words(lines[i]);
    const std::vector<std::string> wantedWords = Words(known[i]);
    ASSERT_EQ(words.size(), wantedWords.size()) << where;
    const std::string context = before + known[i];
    const double relative = HardlyKnown(context)                                      ? 1e-2
                            : context.find("Objective function") != std::string::npos ? 1e-6
                                                                                      : 1e-4;
    before = known[i];
    if (DiffersFromBuildToBuild(known[i])) continue;
    for (std::size_t w = 0; w < words.size(); ++w) CompareNumber(words[w], wantedWords[w], relative, where);
  }
}

TEST(SmallCase, gives_the_known_results) {
  const RunResult run = RunCase(SmallCase());
  ASSERT_EQ(run.exitCode, model::kFitted);
  EXPECT_EQ(run.log, "");
  const std::filesystem::path folder = SMALL_CASE_DIR;
  CompareText(run.rep, ReadText(folder / "small.rep"), "REP");
  CompareText(run.par, ReadText(folder / "small.par"), "PAR");
  CompareText(run.std, ReadText(folder / "small.std"), "STD");
  EXPECT_EQ(Lines(run.rep).size(),
            Lines(ReadText(folder / "small.rep")).size() + 2);  // the two lines with paths
  EXPECT_EQ(Lines(run.std).size(), Lines(ReadText(folder / "small.std")).size());
}

}  // namespace
