// The layout of the output files in every form of the model. Their reader finds sections by words and values
// by their place, so that each form's report is compared, number for number of places, with what the small
// case's known report becomes.

#include <gtest/gtest.h>

#include <filesystem>

#include "case_runs.h"
#include "numbers.h"

namespace {

bool IsValue(const std::string& word) { return word == "N/A" || model::ReadNumber(word).has_value(); }

// The report up to its end with "#" for every value.
std::string Skeleton(const std::string& report) {
  std::string skeleton;
  for (const std::string& line : Lines(report.substr(0, report.find("End of report")))) {
    for (const std::string& word : Words(line)) skeleton += IsValue(word) ? " #" : " " + word;
    skeleton += '\n';
  }
  return skeleton;
}

std::string KnownSkeleton() {
  return Skeleton(ReadText(std::filesystem::path(SMALL_CASE_DIR) / "small.rep"));
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
}

const std::string kRow = " # # #\n";

std::vector<Change> WithCpue(const std::string& word) {
  const std::string survey = " Age classes in survey Biomass";
  const std::string survey1 = " Survey Biomass index 1:";
  return {{survey, " Age classes in CPUE " + word + " Index: # # #\n Observed CPUE " + word +
                       " by year\n years, then values\n" + kRow + kRow + " Predicted CPUE by year\n" + kRow +
                       " CPUE residuals\n" + kRow + " CPUE log residuals\n" + kRow +
                       " CPUE standardized log residuals\n" + kRow + survey},
          {survey1, " CPUE " + word + " index: #\n" + survey1},
          {" Survey index 1:", " CPUE " + word + " index: #\n Survey index 1:"}};
}

// How the skeleton of a variant's report differs from the known one.
std::vector<Change> SkeletonChanges(const std::string& variant) {
  if (variant.rfind("CPUE in numbers", 0) == 0) return WithCpue("Numbers");
  if (variant.rfind("CPUE in biomass", 0) == 0) {
    std::vector<Change> changes = WithCpue("Biomass");
    for (const char* criterion : {"fishing mortality to target F= #", "fishing mortality to limit F= #",
                                  "spawning biomass to target SB=1500", "spawning biomass to limit SB=750"})
      changes.push_back({std::string(" Ratio of annual ") + criterion + "\n" + kRow, ""});
    changes.push_back({" End of ratios", " Initial equilibrium fishing mortality\n #\n End of ratios"});
    return changes;
  }
  if (variant.rfind("normal prior", 0) == 0)
    return {{"by year\n # # # # #\n # # # # #\n", "by year\n # #\n # #\n"},
            {"for recruitment\n # # # # #\n", "for recruitment\n # #\n"}};
  return {};
}

TEST(ReportLayout, is_the_known_one_in_every_form_of_the_model) {
  for (const Variant& variant : Variants()) {
    SCOPED_TRACE(variant.name);
    const RunResult run = RunCase(SmallCase().With(variant.inDat, variant.inPin));
    EXPECT_EQ(run.exitCode, model::kFitted) << run.log;
    std::string wanted = KnownSkeleton();
    for (const Change& change : SkeletonChanges(variant.name)) Replace(wanted, change.from, change.to);
    if (std::string(variant.name).find("survey in numbers") != std::string::npos)
      ReplaceAll(wanted, "Biomass index", "Numbers index");
    EXPECT_EQ(Skeleton(run.rep), wanted);
  }
}

// Several surveys and periods: each block in its order, none of them twice.
TEST(ReportLayout, repeats_blocks_for_surveys_and_periods) {
  const std::string skeleton = Skeleton(RunCase(CodCase()).rep);
  const std::string row = " # # # # # #\n";
  const std::string titles[] = {
      " Age classes in survey Biomass index, survey 1: # # # # # #\n Observed",
      " Age classes in survey Biomass index, survey 2: # # # # # #\n Observed",
      " Fishery age composition input sample size\n",
      " Survey age composition input sample size for survey: #\n",
      " Standardized proportion residuals at age (year,age) for survey: #\n" + row,
      " Survey age composition input sample size for survey: #\n",
      " Population biomass (mt) by year\n",
      " Fishery selectivity by age\n Selectivity period # from # to #\n" + row + row +
          " Selectivity period # from # to #\n" + row + row + " Selectivity period # from # to #\n" + row +
          row + " Selectivity period # from # to #\n" + row + row + " Selectivity by age for survey: #\n" +
          row + row + " Selectivity by age for survey: #\n" + row + row + " Objective function value: #\n",
      " Survey age composition 1: #\n Survey age composition 2: #\n Fishery selectivity: #\n Catch biomass: "
      "#\n Survey Biomass index 1: #\n"
      " Survey Biomass index 2: #\n Fishing",
      " Survey index 1: #\n Survey index 2: #\n Fishing",
      " Survey # Years:",
      " Survey # RMSE:",
      " Survey # Years:",
      " Survey # RMSE:",
      " Fishery selectivity # = # # # # # #\n"};
  std::size_t at = 0;
  for (const std::string& title : titles) {
    const std::size_t found = skeleton.find(title, at);
    ASSERT_NE(found, std::string::npos) << title;
    at = found + title.size();
  }
}

// "rec_dev*5 qSURVEY*1 ..." in the order of the file
std::string NamesAndCounts(const std::string& deviations) {
  std::vector<std::pair<std::string, int>> counts;
  const std::vector<std::string> lines = Lines(deviations);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::vector<std::string> words = Words(lines[i]);
    EXPECT_TRUE(words.size() == 4 && words[0] == std::to_string(i) && IsValue(words[2]) && IsValue(words[3]))
        << lines[i];
    if (counts.empty() || counts.back().first != words.at(1)) counts.emplace_back(words.at(1), 0);
    ++counts.back().second;
  }
  std::string text;
  for (const auto& [name, count] : counts) text += name + "*" + std::to_string(count) + " ";
  return text;
}

// The reader takes all elements of a name in a row and counts on the case's dimensions.
TEST(ReportLayout, deviations_have_the_names_and_counts_that_their_reader_expects) {
  const std::string base = "mean_log_rec*1 rec_dev*5 log_avg_fmort*1 fmort_dev*3 ";
  const std::string curves = "log_beta_FISH*1 log_a50_FISH*1 log_beta_SURVEY*1 log_a50_SURVEY*1 ";
  const std::string derived =
      "meanr*1 popnbiom*3 spawnbiom*3 explbiom*3 recruitment*5 surplus_production*2 deppopnbiom*1 "
      "deppopnbiom_depyr*1 "
      "depspawnbiom*1 depspawnbiom_depyr*1 depF*1 depF_depyr*1 endN*3 projN*3 fullF*3 ";
  const std::string criteria =
      "target_f_ratio*3 limit_f_ratio*3 target_spawnbiom_ratio*3 limit_spawnbiom_ratio*3 ";
  const std::string wanted[] = {
      base + curves + "qSURVEY*1 " + derived + criteria,
      base +
          "log_gamma_FISH*1 log_beta_FISH*1 log_a50_FISH*1 exp_SURVEY*1 log_gamma_SURVEY*1 log_beta_SURVEY*1 "
          "log_a50_SURVEY*1 qSURVEY*1 " +
          derived + criteria,
      base + "log_selpar_FISH*3 log_selpar_SURVEY*3 qSURVEY*1 " + derived + criteria,
      base + "log_sel_annual_FISH*6 log_beta_SURVEY*1 log_a50_SURVEY*1 qSURVEY*1 " + derived + criteria,
      base + curves + "log_F_init*1 qSURVEY*1 qCPUE*1 " + derived,
      "M*1 " + base + "exp_CPUE*1 " + curves + "qSURVEY*1 qCPUE*1 " + derived + criteria};
  for (std::size_t i = 0; i < std::size(wanted); ++i) {
    const Variant& variant = Variants()[i];
    EXPECT_EQ(NamesAndCounts(RunCase(SmallCase().With(variant.inDat, variant.inPin)).std), wanted[i])
        << variant.name;
  }
}

TEST(ReportLayout, missing_and_unfitted_observations_show_as_such) {
  const auto has = [](const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  };
  const auto rep = [](std::size_t variant) {
    return RunCase(SmallCase().With(Variants()[variant].inDat, Variants()[variant].inPin)).rep;
  };

  const std::string cpue =
      rep(4);  // the second of three CPUE values is neither fitted nor usable, and the second catch is 0
  EXPECT_TRUE(has(cpue, "years, then values\n 2001 2002 2003\n 1.1 0 0.8\n"));
  for (const char* title : {"CPUE residuals\n", "CPUE log residuals\n", "CPUE standardized log residuals\n"})
    EXPECT_EQ(Words(cpue.substr(cpue.find(title) + std::string(title).size())).at(1), "N/A") << title;
  for (const char* title : {"\nResiduals for catch biomass (mt) by year\n",
                            "\nStandardized log-scale residuals for catch biomass by year\n"})
    EXPECT_EQ(Words(cpue.substr(cpue.find(title) + std::string(title).size())).at(1), "-99999") << title;

  const std::string survey = rep(6);  // the survey's index is not fitted, and its second composition is empty
  EXPECT_TRUE(has(survey, "\nBiomass index residuals (year) for survey: 1\n N/A N/A N/A\n"));
  const std::string compositions =
      survey.substr(survey.find("Observed proportion at age (year,age) for survey: 1\n"));
  EXPECT_EQ(Lines(compositions).at(2), " N/A N/A N/A");
  EXPECT_TRUE(has(survey, "estimated effective sample size for survey: 1\n") && has(survey, " 0 "));

  const std::string leftOut = rep(2);  // age 1 is no part of the survey
  EXPECT_TRUE(has(leftOut, "Observed proportion at age (year,age) for survey: 1\n 0 0.6 0.4\n"));
}

}  // namespace
