// A real stock, North Sea cod 1963-2014: known results, whatever the start, and the same bytes every time.

#include <gtest/gtest.h>

#include <stdexcept>

#include "case_runs.h"
#include "numbers.h"

namespace {

// The values behind the words `title` of a report, as far as the next word.
std::vector<double> ValuesBehind(const std::string& report, const std::string& title) {
  std::vector<double> values;
  const std::size_t at = report.find(title);
  if (at == std::string::npos) throw std::runtime_error("no " + title);
  for (const std::string& word : Words(report.substr(at + title.size()))) {
    const auto value = model::ReadNumber(word);
    if (!value) break;
    values.push_back(*value);
  }
  return values;
}

double Objective(const RunResult& run) { return ValuesBehind(run.rep, "Objective function value:").at(0); }

TEST(CodCase, gives_the_known_results) {
  const RunResult run = RunCase(CodCase());
  EXPECT_EQ(run.exitCode, model::kFitted);
  EXPECT_EQ(run.log, "");
  EXPECT_NEAR(Objective(run), 224.999, 0.01);
  const std::pair<const char*, double> components[] = {{"Recruitment deviations:", 43.4539},
                                                       {"Fishery age composition:", 110.478},
                                                       {"Survey age composition 1:", 40.8755},
                                                       {"Survey age composition 2:", 16.5295},
                                                       {"Catch biomass:", 3.87153},
                                                       {"Survey Biomass index 1:", 3.54657},
                                                       {"Survey Biomass index 2:", 4.54264},
                                                       {"Fishing mortality deviations penalty:", 1.30680}};
  for (const auto& [title, value] : components)
    EXPECT_NEAR(ValuesBehind(run.rep, title).at(0), value, 1e-4 * value) << title;
  const std::vector<double> spawning =
      ValuesBehind(run.rep, "Spawning biomass (mt) by year");  // the years, then the biomass
  ASSERT_EQ(spawning.size(), 104U);
  EXPECT_NEAR(spawning[52], 136345, 136);
  EXPECT_NEAR(spawning[103], 126007, 126);
  EXPECT_EQ(Lines(run.std).size(), 675U);
}

TEST(CodCase, start_values_do_not_matter) {
  const std::pair<const char*, const char*> starts[] = {{"5", "-5"}, {"25", "1"}};
  for (const auto& [recruitment, fishing] : starts) {
    CaseText text = CodCase();
    std::size_t at = text.pin.find('\n', text.pin.find("(mean_log_rec)")) + 1;
    text.pin.replace(at, text.pin.find('\n', at) - at, recruitment);
    at = text.pin.find('\n', text.pin.find("LOG of MEAN FISHING")) + 1;
    text.pin.replace(at, text.pin.find('\n', at) - at, fishing);
    EXPECT_NEAR(Objective(RunCase(text)), 224.9993, 0.001) << recruitment;
  }
}

TEST(CodCase, two_runs_write_the_same_bytes) {
  const CaseText text = CodCase();
  RunResult first = RunCase(text);
  RunResult second = RunCase(text);
  EXPECT_EQ(first.par, second.par);
  EXPECT_EQ(first.std, second.std);
  for (RunResult* run : {&first, &second})
    run->rep.resize(run->rep.find("data file "));  // the folders differ
  EXPECT_EQ(first.rep, second.rep);
}

}  // namespace
