#include "report_rep.h"

#include "derived.h"
#include "report_text.h"
#include "residuals.h"
#include "reweighting.h"

#include <algorithm>
#include <numeric>

namespace model {

namespace {

constexpr double kNoCatchResidual = -99999;  // of a year without catch

// What all sections read, and the text so far.
struct Report {
  const Fit& fit;
  const CaseData& data;
  const Population<double>& pop;
  Derived<double> derived;
  Components<double> components;
  std::string text;
};

// ---- Lines ----

void Line(Report& r, const std::string& line) { r.text += line + '\n'; }

template <class Values>
void Row(Report& r, const Values& values) {
  Line(r, Joined(values));
}

template <class Values>
void Section(Report& r, const std::string& title, const Values& values) {
  Line(r, title);
  Row(r, values);
}

template <class T>
void Table(Report& r, const std::string& title, const Grid<T>& table, int rows) {
  Line(r, title);
  for (int row = 0; row < rows; ++row) Row(r, RowOf(table, row));
}

template <class T>
void Table(Report& r, const std::string& title, const Grid<T>& table) {
  Table(r, title, table, table.rows);
}

template <class Indices, class Values>
void SectionWith(Report& r, const std::string& title, const Indices& indices, const Values& values) {
  Section(r, title, indices);
  Row(r, values);
}

std::string Value(double value) { return ": " + General(value); }

const char* IndexWord(const IndexSeries& series) { return series.inNumbers == 1 ? "Numbers" : "Biomass"; }

std::vector<int> Counted(int first, int last) {
  std::vector<int> numbers(static_cast<std::size_t>(last - first + 1));
  std::iota(numbers.begin(), numbers.end(), first);
  return numbers;
}

std::vector<int> Years(const Report& r) { return Counted(r.data.styr, r.data.endyr); }
std::vector<int> Ages(const Report& r) { return Counted(1, r.data.nAges); }

std::vector<double> Scaled(std::vector<double> selectivity) {
  const double full = *std::max_element(selectivity.begin(), selectivity.end());
  for (double& s : selectivity) s /= full;
  return selectivity;
}

std::vector<double> ScaledFisherySelectivity(const Report& r, int y) {
  return Scaled(RowOf(r.pop.fisherySelectivity, y));
}

// ---- Sections, in the order of the report ----

void WriteCpue(Report& r) {
  const IndexSeries& cpue = r.data.cpue;
  if (cpue.isFitted != 1) return;
  const std::string word = IndexWord(cpue);
  const IndexResiduals residuals = ComputeIndexResiduals(r.data, cpue, r.pop.cpue);
  Line(r, "Age classes in CPUE " + word + " Index:" + Joined(cpue.includesAge));
  Line(r, "Observed CPUE " + word + " by year");
  SectionWith(r, "years, then values", cpue.year, cpue.value);
  Section(r, "Predicted CPUE by year", r.pop.cpue.index);
  Section(r, "CPUE residuals", residuals.plain);
  Section(r, "CPUE log residuals", residuals.logScale);
  Section(r, "CPUE standardized log residuals", residuals.standardized);
}

// The first line must be there with and without a CPUE block: the reader ends its search for that block with
// it.
void WriteSurveyIndex(Report& r, int s) {
  const IndexSeries& series = r.data.surveys[s].index;
  const std::string word = IndexWord(series);
  const std::string number = std::to_string(s + 1);
  const std::string of = " (year) for survey: " + number;
  const IndexResiduals residuals = ComputeIndexResiduals(r.data, series, r.pop.survey[s]);
  Line(r, "Age classes in survey " + word + " index, survey " + number + ":" + Joined(series.includesAge));
  SectionWith(r, "Observed " + word + " index" + of, series.year, series.value);
  Section(r, "Predicted " + word + " index" + of, r.pop.survey[s].index);
  Section(r, word + " index residuals" + of, residuals.plain);
  Section(r, "Log-scale " + word + " index residuals" + of, residuals.logScale);
  Section(r, "Standardized log-scale " + word + " index residuals" + of, residuals.standardized);
}

// The titles of the blocks of a composition.
struct CompositionTitles {
  std::string fleet;       // "Fishery" or "Survey"
  std::string proportion;  // "fishery proportion at age by year"
  std::string residuals;   // "fishery proportion residuals at age by year"
  std::string plainResiduals;
  std::string of;  // behind the sample sizes
};

void WriteComposition(Report& r, const CompositionSeries& series, const std::vector<double>& sizes,
                      const Grid<double>& predicted, const CompositionTitles& titles) {
  const CompositionResiduals residuals = ComputeCompositionResiduals(r.data, series, sizes, predicted);
  SectionWith(r, titles.fleet + " age composition input sample size" + titles.of, series.year,
              series.sampleSize);
  Section(r, titles.fleet + " age composition estimated effective sample size" + titles.of,
          EffectiveSampleSizes(r.data, series, predicted));
  Table(r, "Observed " + titles.proportion, residuals.observed);
  Table(r, "Predicted " + titles.proportion, predicted);
  Table(r, titles.plainResiduals, residuals.plain);
  Table(r, "Standardized " + titles.residuals, residuals.standardized);
}

void WriteCompositions(Report& r) {
  const SampleSizes& sizes = r.fit.settings.sampleSizes;
  WriteComposition(
      r, r.data.fishery, sizes.fishery, r.pop.fisheryProportion,
      {"Fishery", "fishery proportion at age by year", "fishery proportion residuals at age by year",
       "Fishery proportion residuals at age by year", ""});
  for (int s = 0; s < r.data.nSurveys; ++s) {
    const std::string of = " for survey: " + std::to_string(s + 1);
    const std::string at = " at age (year,age)" + of;
    WriteComposition(
        r, r.data.surveys[s].composition, sizes.survey[s], r.pop.surveyProportion[s],
        {"Survey", "proportion" + at, "proportion residuals" + at, "Proportion residuals" + at, of});
  }
}

void WriteBiomassSection(Report& r, const std::string& capital, const std::string& small,
                         const std::vector<double>& biomass, Depletion of) {
  const std::string endyr = std::to_string(r.data.endyr);
  SectionWith(r, capital + " biomass (mt) by year", Years(r), biomass);
  Section(r, "Depletion ratio in " + endyr + " for " + small + " biomass",
          r.derived.depletion[of][kToFirstYear]);
  Section(r, "Ratio in " + endyr + " relative to " + std::to_string(r.data.depyr) + " " + small + " biomass",
          r.derived.depletion[of][kToReferenceYear]);
}

void WriteStock(Report& r) {
  const CaseData& data = r.data;
  const Derived<double>& d = r.derived;
  WriteBiomassSection(r, "Population", "population", d.populationBiomass, kOfPopulation);
  WriteBiomassSection(r, "Spawning", "spawning", d.spawningBiomass, kOfSpawning);
  SectionWith(r, "Exploitable biomass (mt) by year", Years(r), d.exploitableBiomass);
  SectionWith(r,
              "Population numbers at age (thousands) at the start of the terminal year plus one, " +
                  std::to_string(data.endyr + 1),
              Ages(r), d.projectedNumbers);
  Section(r, "Mean recruitment (thousands of fish)", d.meanRecruitment);
  SectionWith(r, "Recruitment (thousands of age-1 fish) by year",
              Counted(data.FirstDeviationYear(), data.endyr), d.recruitment);
  std::vector<double> residuals;
  for (int i = 0; i < data.DeviationCount(); ++i)
    residuals.push_back(r.fit.values.At(gRecDev, i) / r.fit.settings.sigma.recruitment);
  Section(r, "Standardized log-scale residuals for recruitment", residuals);
}

void WriteCatch(Report& r) {
  const CaseData& data = r.data;
  std::vector<double> residuals(data.catchBiomass.size(), kNoCatchResidual);
  std::vector<double> standardized = residuals;
  for (int y = 0; y < data.nYears; ++y) {
    if (data.catchBiomass[y] <= 0) continue;
    residuals[y] = data.catchBiomass[y] - r.pop.catchBiomass[y];
    standardized[y] = LogCatchResidual(data, r.pop, y) / r.fit.settings.sigma.catchBiomass;
  }
  SectionWith(r, "Observed catch biomass (mt) by year", Years(r), data.catchBiomass);
  Section(r, "Predicted catch biomass (mt) by year", r.pop.catchBiomass);
  Section(r, "Residuals for catch biomass (mt) by year", residuals);
  Section(r, "Standardized log-scale residuals for catch biomass by year", standardized);
  SectionWith(r, "Annual surplus production (mt)", Counted(data.styr, data.endyr - 1),
              r.derived.surplusProduction);
}

void WriteFishing(Report& r) {
  const CaseData& data = r.data;
  const Derived<double>& d = r.derived;
  SectionWith(r, "Annual fishing mortality (fully selected) by year", Years(r), d.fullF);
  std::vector<double> residuals;
  for (int y = 0; y < data.nYears; ++y)
    residuals.push_back(r.fit.values.At(gFmortDev, y) / r.fit.settings.sigma.fishing);
  Section(r, "Standardized log-scale residuals for fishing mortality by year", residuals);

  const std::string ratio = "Ratio of F in " + std::to_string(data.endyr) + " to F in ";
  Section(r, ratio + std::to_string(data.styr), d.depletion[kOfFullF][kToFirstYear]);
  Section(r, ratio + std::to_string(data.depyr), d.depletion[kOfFullF][kToReferenceYear]);
  if (data.estimateInitialF == 1) {
    const std::vector<double> first = RowOf(r.pop.fisherySelectivity, 0);
    Section(r, "Initial equilibrium fishing mortality",
            std::vector<double>{r.pop.initialF * *std::max_element(first.begin(), first.end())});
  }

  // No blank behind "SB=": the reader takes the text from the "=" on, and with a blank would show that alone.
  const auto criterion = [&r](const std::string& title, double value, const std::vector<double>& ratios) {
    if (!ratios.empty()) Section(r, title + General(value), ratios);
  };
  criterion("Ratio of annual fishing mortality to target F= ", data.targetF, d.targetF);
  criterion("Ratio of annual fishing mortality to limit F= ", data.limitF, d.limitF);
  criterion("Ratio of annual spawning biomass to target SB=", data.targetSpawning, d.targetSpawning);
  criterion("Ratio of annual spawning biomass to limit SB=", data.limitSpawning, d.limitSpawning);
  Line(r, "End of ratios");  // the reader loses the line behind the ratios; it shall be this one
}

// The mean over a period's years, which differ only in the annual form. A period that the next one starts
// with has the selectivity of that year.
std::vector<double> PeriodSelectivity(const Report& r, int firstYear, int lastYear) {
  std::vector<double> mean(static_cast<std::size_t>(r.data.nAges), 0.0);
  const int last = std::max(firstYear, lastYear);
  for (int year = firstYear; year <= last; ++year) {
    const std::vector<double> scaled = ScaledFisherySelectivity(r, year - r.data.styr);
    for (int a = 0; a < r.data.nAges; ++a) mean[a] += scaled[a] / (last - firstYear + 1);
  }
  return mean;
}

void WriteSelectivities(Report& r) {
  const CaseData& data = r.data;
  Line(r, "Fishery selectivity by age");
  for (int p = 0; p < data.nPeriods; ++p) {
    const int first = data.periodStart[p];
    const int last = p + 1 < data.nPeriods ? data.periodStart[p + 1] - 1 : data.endyr;
    SectionWith(r,
                "Selectivity period " + std::to_string(p + 1) + " from " + std::to_string(first) + " to " +
                    std::to_string(last),
                Ages(r), PeriodSelectivity(r, first, last));
  }
  for (int s = 0; s < data.nSurveys; ++s)
    SectionWith(r, "Selectivity by age for survey: " + std::to_string(s + 1), Ages(r),
                Scaled(RowOf(r.pop.surveySelectivity, s)));
}

void WriteObjective(Report& r) {
  const CaseData& data = r.data;
  const Components<double>& c = r.components;
  Line(r, "Objective function value" + Value(r.fit.objective));
  Line(r, "Likelihood components");
  Line(r, "Recruitment deviations" + Value(c.recruitment));
  Line(r, "Fishery age composition" + Value(c.fisheryComposition));
  for (int s = 0; s < data.nSurveys; ++s)
    Line(r, "Survey age composition " + std::to_string(s + 1) + Value(c.surveyComposition[s]));
  Line(r, "Fishery selectivity" + Value(c.fisherySelectivity));
  Line(r, "Catch biomass" + Value(c.catchBiomass));
  if (data.cpue.isFitted == 1)
    Line(r, std::string("CPUE ") + IndexWord(data.cpue) + " index" + Value(c.cpue));
  for (int s = 0; s < data.nSurveys; ++s)
    Line(r, std::string("Survey ") + IndexWord(data.surveys[s].index) + " index " + std::to_string(s + 1) +
                Value(c.surveyIndex[s]));
  Line(r, "Fishing mortality deviations penalty" + Value(c.fishing));
  Line(r, "Other penalties and priors" + Value(c.other));
}

std::vector<double> ValuesOf(const Report& r, Group group) {
  const double* const begin = &r.fit.values.At(group);
  return {begin, begin + r.fit.layout.groups[group].count};
}

void WriteRootMeanSquares(Report& r) {
  const CaseData& data = r.data;
  std::vector<double> catches;
  for (int y = 0; y < data.nYears; ++y)
    if (data.catchBiomass[y] > 0) catches.push_back(LogCatchResidual(data, r.pop, y));
  Line(r, "Root mean square errors");
  Line(r, "Recruitment deviations" + Value(RootMeanSquare(ValuesOf(r, gRecDev))));
  Line(r, "Catch biomass" + Value(RootMeanSquare(catches)));
  if (data.cpue.isFitted == 1)
    Line(r, std::string("CPUE ") + IndexWord(data.cpue) + " index" +
                Value(ComputeIndexResiduals(data, data.cpue, r.pop.cpue).rootMeanSquare));
  for (int s = 0; s < data.nSurveys; ++s)
    Line(r, "Survey index " + std::to_string(s + 1) +
                Value(ComputeIndexResiduals(data, data.surveys[s].index, r.pop.survey[s]).rootMeanSquare));
  Line(r, "Fishing mortality deviations" + Value(RootMeanSquare(ValuesOf(r, gFmortDev))));

  const SampleSizes& sizes = r.fit.settings.sampleSizes;
  Line(r, "Fishery Years:" + Joined(data.fishery.year));
  Line(r, "Fishery age RMSE:" +
              Joined(ComputeCompositionResiduals(data, data.fishery, sizes.fishery, r.pop.fisheryProportion)
                         .rootMeanSquare));
  for (int s = 0; s < data.nSurveys; ++s) {
    const CompositionSeries& series = data.surveys[s].composition;
    const std::string survey = "Survey " + std::to_string(s + 1);
    Line(r, survey + " Years:" + Joined(series.year));
    Line(r, survey + " RMSE:" +
                Joined(ComputeCompositionResiduals(data, series, sizes.survey[s], r.pop.surveyProportion[s])
                           .rootMeanSquare));
  }
}

// The unfished stock at mean recruitment and mean maturity and weight.
void WriteUnfished(Report& r) {
  const CaseData& data = r.data;
  const int A = data.nAges;
  const double meanRecruitment = r.derived.meanRecruitment.front();
  std::vector<double> weight(static_cast<std::size_t>(A), 0.0);
  std::vector<double> spawnings = weight;
  double survival = 1;
  double perRecruit = 0;
  for (int a = 0; a < A; ++a) {
    double maturity = 0;
    for (int y = 0; y < data.nYears; ++y) {
      weight[a] += data.spawningWeight(y, a) / data.nYears;
      maturity += data.maturity(y, a) / data.nYears;
    }
    const double M = r.pop.M[a];
    const double alive = a + 1 < A ? survival : survival / (1 - std::exp(-M));
    spawnings[a] = alive * maturity * std::exp(-data.fractionBeforeSpawning * M);
    perRecruit += weight[a] * spawnings[a];
    survival *= std::exp(-M);
  }
  const double unfished = perRecruit * meanRecruitment;
  Line(r, "M SCALAR = " + General(r.fit.values.At(gM)));
  Line(r, "M MULT =" + Joined(data.multM));
  Line(r, "M AT AGE =" + Joined(r.pop.M));
  Line(r, "UNFISHED MEAN REC = " + General(meanRecruitment));
  Line(r, "unfished mean spawning weight at age (kg) =" + Joined(weight));
  Line(r, "unfished expected spawnings at age =" + Joined(spawnings));
  Line(r, "unfished spawning biomass per recruit (kg) = " + General(perRecruit));
  Line(r, "unfished spawning biomass (mt) = " + General(unfished));
  for (int y = 0; y < data.nYears; ++y)
    Line(r, "fraction of unfished spawning biomass = " + std::to_string(data.styr + y) + ' ' +
                General(r.derived.spawningBiomass[y] / unfished));
}

template <class CellValue>
void WriteByAge(Report& r, const std::string& title, const CellValue& cell) {
  for (int y = 0; y < r.data.nYears; ++y) {
    std::vector<double> row;
    for (int a = 0; a < r.data.nAges; ++a) row.push_back(cell(y, a));
    Line(r, title + std::to_string(r.data.styr + y) + Joined(row));
  }
}

void WriteBiomassAtAge(Report& r) {
  const CaseData& data = r.data;
  const Population<double>& pop = r.pop;
  WriteByAge(r, "catch biomass at age (mt) = ", [&](int y, int a) {
    return pop.catchNumbers(y, a) * data.catchWeight(y, a);
  });
  WriteByAge(r, "population biomass at age (mt) = ", [&](int y, int a) {
    return pop.N(y, a) * data.stockWeight(y, a);
  });
  WriteByAge(r, "spawning biomass at age (mt) = ", [&](int y, int a) {
    return pop.N(y, a) * std::exp(-data.fractionBeforeSpawning * pop.Z(y, a)) * data.maturity(y, a) *
           data.spawningWeight(y, a);
  });
  WriteByAge(r, "exploitable biomass at age (mt) = ", [&](int y, int a) {
    return pop.N(y, a) * data.catchWeight(y, a) * pop.fisherySelectivity(y, a) /
           pop.fisherySelectivity(y, FullySelectedAge(pop.fisherySelectivity, y));
  });
}

}  // namespace

std::string ReportText(const Fit& fit, const Population<double>& population, const std::string& dataFile,
                       const std::string& parameterFile) {
  const CaseData& data = fit.data;
  Report r{
      fit, data, population, ComputeDerived(data, fit.values, population), fit.CurrentComponents(population),
      ""};
  Line(r, "Tarnvik statistical catch-at-age model, Version 1.4, report");
  Line(r, fit.converged ? "Converged" : "NOT CONVERGED");
  Table(r, "Estimated numbers of fish at age (thousands) by year", population.N, data.nYears);
  Table(r, "Estimated fishing mortality by year and age", population.F);
  WriteCpue(r);
  for (int s = 0; s < data.nSurveys; ++s) WriteSurveyIndex(r, s);
  WriteCompositions(r);
  WriteStock(r);
  WriteCatch(r);
  WriteFishing(r);
  WriteSelectivities(r);
  WriteObjective(r);
  WriteRootMeanSquares(r);
  for (int y = 0; y < data.nYears; ++y)
    Line(r, "Fishery selectivity " + std::to_string(data.styr + y) + " =" +
                Joined(ScaledFisherySelectivity(r, y)));
  WriteUnfished(r);
  WriteBiomassAtAge(r);
  Line(r, "End of report");
  Line(r, "maximum gradient component " + Exponential(fit.maxGradient));
  Line(r, "data file " + dataFile);
  Line(r, "parameter file " + parameterFile);
  return r.text;
}

}  // namespace model
