// The stock against what must hold of it whatever the numbers are.

#include "population.h"

#include <gtest/gtest.h>

#include <numeric>
#include <sstream>

#include "case_runs.h"
#include "fit.h"
#include "reweighting.h"

namespace {

struct Stock {
  LoadedCase loaded;
  model::Population<double> pop;
};

Stock StockOf(const CaseText& text) {
  Stock stock{Load(text), {}};
  std::ostringstream ignored;
  const model::Fit fit(stock.loaded.data, stock.loaded.start, {ignored, ignored});
  stock.pop = fit.CurrentPopulation();
  return stock;
}

const std::vector<Change> kInitialF = {
    {"# estimate_initial_equilibrium_F\n0", "# estimate_initial_equilibrium_F\n1"},
    {"# Initial equilibrium catch biomass\n0.0", "# Initial equilibrium catch biomass\n380"}};

// Fished at the initial rate with mean recruitment, the stock stays as it began, and so does the catch.
TEST(Population, equilibrium_keeps_itself) {
  const Stock s =
      StockOf(SmallCase().With(kInitialF, {{"# log_avg_fmort\n-1", "# log_avg_fmort\n-2.302585092994046"}}));
  for (int y = 0; y <= s.loaded.data.nYears; ++y)
    for (int a = 0; a < s.loaded.data.nAges; ++a) EXPECT_NEAR(s.pop.N(y, a) / s.pop.N(0, a), 1, 1e-12);
  for (const double biomass : s.pop.catchBiomass) EXPECT_NEAR(biomass / s.pop.initialCatch, 1, 1e-12);
}

TEST(Population, every_fish_survives_is_caught_or_dies_naturally) {
  for (const Variant& variant : Variants()) {
    SCOPED_TRACE(variant.name);
    const Stock s = StockOf(SmallCase().With(variant.inDat, variant.inPin));
    const int A = s.loaded.data.nAges;
    for (int y = 0; y < s.loaded.data.nYears; ++y) {
      double before = 0, after = 0, dead = 0;
      for (int a = 0; a < A; ++a) {
        before += s.pop.N(y, a);
        if (a > 0) after += s.pop.N(y + 1, a);
        dead += s.pop.catchNumbers(y, a) * s.pop.Z(y, a) / s.pop.F(y, a);
      }
      EXPECT_NEAR(before, after + dead, 1e-9 * before) << y;
    }
  }
}

TEST(Population, plus_group_of_two_ages_takes_up_both) {
  const LoadedCase loaded = Load(SmallCase());
  model::CaseData data = loaded.data;
  data.nAges = 2;
  data.lastSelectivityAge = {2};
  for (model::Survey& survey : data.surveys) survey.lastSelectivityAge = 2;
  model::StartValues start = loaded.start;
  start.recDev = {0.1, -0.2, 0.3, 0};
  start.logSelFish = start.logSelSurvey = {0, 0};
  start.annualAges = 2;
  start.logSelAnnual.assign(6, 0.0);
  std::ostringstream ignored;
  const model::Fit fit(data, start, {ignored, ignored});
  const auto pop = fit.CurrentPopulation();
  EXPECT_NEAR(pop.N(1, 1), pop.N(0, 0) * std::exp(-pop.Z(0, 0)) + pop.N(0, 1) * std::exp(-pop.Z(0, 1)), 1e-9);
  EXPECT_NEAR(pop.N(0, 0), std::exp(start.meanLogRec - 0.2), 1e-9);
  EXPECT_NEAR(pop.N(0, 1), std::exp(start.meanLogRec + 0.1 - 0.3) / (1 - std::exp(-0.2)), 1e-9);
}

// With the best q the residuals of a fitted series have mean 0 on the log scale, and doubling an index
// doubles only q.
TEST(Population, best_catchability_centres_the_residuals) {
  const Stock s = StockOf(SmallCase());
  const model::IndexSeries& index = s.loaded.data.surveys[0].index;
  double sum = 0;
  for (int i = 0; i < index.nYears; ++i) sum += std::log(index.value[i] / s.pop.survey[0].index[i]);
  EXPECT_NEAR(sum, 0, 1e-12);
  const Stock doubled = StockOf(SmallCase().With({{"155  150  171", "310  300  342"}}));
  EXPECT_NEAR(doubled.pop.survey[0].logQ - s.pop.survey[0].logQ, std::log(2), 1e-12);
}

// Without any usable value the q of the parameter file is all there is; a missing value is no part of the
// mean.
TEST(Population, catchability_rests_on_usable_values_only) {
  const Stock none = StockOf(SmallCase().With({{"155  150  171", "-1 0 -9"}},
                                              {{"# qSURVEY (Spring)\n1", "# qSURVEY (Spring)\n0.25"}}));
  EXPECT_NEAR(none.pop.survey[0].logQ, std::log(0.25), 1e-12);
  const Stock one = StockOf(SmallCase().With({{"155  150  171", "-1 150 0"}}));
  EXPECT_NEAR(one.pop.survey[0].index[1], 150, 1e-9);
  const Stock unfitted = StockOf(
      SmallCase().With({{"155  150  171", "-1 150 0"}, {"# fit_survey_index\n1", "# fit_survey_index\n0"}}));
  EXPECT_NEAR(unfitted.pop.survey[0].index[1], 150, 1e-9);
}

// A sample drawn with a multinomial's variance has that sample size as its effective one.
TEST(Reweighting, effective_size_is_the_size_whose_scatter_shows) {
  model::CaseData data = Load(SmallCase()).data;
  model::CompositionSeries series = data.fishery;
  model::Grid<double> predicted(3, 3);
  predicted.cells = {0.5, 0.3, 0.2, 0.5, 0.3, 0.2, 0.5, 0.3, 0.2};
  const double unit = std::sqrt((0.25 + 0.21 + 0.16) / 2 / 80);  // two ages off by this much: size 80
  series.proportion.cells = {0.5 + unit, 0.3 - unit, 0.2, 0, 0, 0, 0.5, 0.3, 0.2};
  const std::vector<double> sizes = model::EffectiveSampleSizes(data, series, predicted);
  EXPECT_NEAR(sizes[0], 80, 1e-9);
  EXPECT_EQ(sizes[1], 0);
  EXPECT_GT(sizes[2], 1e9);
}

TEST(Reweighting, goes_on_until_the_sizes_settle_and_keeps_the_input_sizes_in_the_report) {
  const CaseText text = SmallCase().With(
      {{"# estimate_effective_sample_size_SURVEY\n0", "# estimate_effective_sample_size_SURVEY\n1"},
       {kSmallPhases, "# phases\n-1\n1\n2\n1\n2\n-1\n-1\n-1\n3\n3\n-1\n-1\n-1\n-1\n-1\n-1\n3\n3\n-1\n5\n"}});
  const RunResult run = RunCase(text);
  EXPECT_EQ(run.exitCode, model::kFitted);
  std::vector<double> changes;
  for (const std::string& line : Lines(run.progress))
    if (line.rfind("reweighting", 0) == 0) changes.push_back(std::stod(Words(line)[4]));
  ASSERT_GE(changes.size(), 2U);
  EXPECT_LT(changes.back(), 0.01);
  EXPECT_GE(changes[changes.size() - 2], 0.01);
  EXPECT_NE(run.rep.find("input sample size for survey: 1\n 2001 2002 2003\n 50 50 50\n"), std::string::npos);
}

}  // namespace
