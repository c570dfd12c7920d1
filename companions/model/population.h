// The stock: numbers, mortality, catch, and what fishery and surveys should have seen of it.
//
// Separable fishing mortality and the Baranov catch equation (Baranov 1918; Fournier and Archibald 1982), age
// A being a plus group (Quinn and Deriso 1999). Years and ages are counted from 0; numbers in thousands,
// biomass in mt.
#pragma once

#include "case_data.h"
#include "parameters.h"
#include "selectivity.h"

#include <vector>

namespace model {

// The fishing mortality of a year without catch: not quite 0, so that proportions of its catch stay defined.
constexpr double kClosedFishery = 1e-6;

// An index as the model sees it, for every year of the case, observed or not.
template <class T>
struct IndexPrediction {
  std::vector<T> available;  // Y, the stock that the gear selects at the time: numbers or biomass
  T logQ = 0;                // of the relation log(index) = logQ + exponent log(available)
  std::vector<T> index;      // Y, predicted index
};

template <class T>
struct Population {
  Grid<T> fisherySelectivity;             // Y x A, not scaled
  Grid<T> surveySelectivity;              // S x A, not scaled
  std::vector<T> M;                       // A
  Grid<T> F, Z;                           // Y x A
  std::vector<T> recruitment;             // age 1 of the years styr-A+1..endyr
  Grid<T> N;                              // (Y+1) x A; the last row is the projection
  Grid<T> catchNumbers;                   // Y x A
  std::vector<T> catchBiomass;            // Y
  T initialF = 0;                         // F0
  T initialCatch = 0;                     // mt, equilibrium catch before styr
  Grid<T> fisheryProportion;              // Y x A
  std::vector<Grid<T>> surveyProportion;  // per survey Y x A, excluded ages 0
  std::vector<IndexPrediction<T>> survey;
  IndexPrediction<T> cpue;
};

// ---- Stock ----

template <class T>
void ComputeMortality(const CaseData& data, const ParameterValues<T>& values, Population<T>& pop) {
  using std::exp;
  const int Y = data.nYears;
  const int A = data.nAges;
  pop.M.resize(static_cast<std::size_t>(A));
  for (int a = 0; a < A; ++a) pop.M[a] = values.At(gM) * data.multM[a];
  pop.F = Grid<T>(Y, A);
  pop.Z = Grid<T>(Y, A);
  for (int y = 0; y < Y; ++y) {
    T f = kClosedFishery;
    if (data.catchBiomass[y] > 0) f = exp(values.At(gLogAvgFmort) + values.At(gFmortDev, y));
    for (int a = 0; a < A; ++a) {
      pop.F(y, a) = f * pop.fisherySelectivity(y, a);
      pop.Z(y, a) = pop.F(y, a) + pop.M[a];
    }
  }
}

// Recruitment has neither a bias correction nor a stock-recruitment curve; years before the deviations take
// the mean.
template <class T>
void ComputeRecruitment(const CaseData& data, const ParameterValues<T>& values, Population<T>& pop) {
  using std::exp;
  const int r0 = data.FirstDeviationYear();
  const int first = data.styr - data.nAges + 1;
  pop.recruitment.resize(static_cast<std::size_t>(data.endyr - first + 1));
  for (int year = first; year <= data.endyr; ++year) {
    T logRecruitment = values.At(gMeanLogRec);
    if (year >= r0) logRecruitment += values.At(gRecDev, year - r0);
    pop.recruitment[year - first] = exp(logRecruitment);
  }
}

// The initial numbers from the recruitment of each age's year of birth, and the equilibrium catch before styr
// from mean recruitment.
template <class T>
void ComputeInitialNumbers(const CaseData& data, const ParameterValues<T>& values, Population<T>& pop) {
  using std::exp;
  const int A = data.nAges;
  const bool fished = data.estimateInitialF == 1;
  const T meanRecruitment = exp(values.At(gMeanLogRec));
  if (fished) pop.initialF = exp(values.At(gLogFInit));
  T survival = 1;
  for (int a = 0; a < A; ++a) {
    T f = 0;
    if (fished) f = pop.initialF * pop.fisherySelectivity(0, a);
    const T z = pop.M[a] + f;
    const T alive = exp(-z);
    T share = survival;
    if (a == A - 1) share = survival / (1 - alive);
    pop.N(0, a) = pop.recruitment[A - 1 - a] * share;
    if (fished) pop.initialCatch += meanRecruitment * share * f / z * (1 - alive) * data.catchWeight(0, a);
    survival = survival * alive;
  }
}

template <class T>
void ComputeNumbersAndCatch(const CaseData& data, const ParameterValues<T>& values, Population<T>& pop) {
  using std::exp;
  const int Y = data.nYears;
  const int A = data.nAges;
  pop.N = Grid<T>(Y + 1, A);
  pop.catchNumbers = Grid<T>(Y, A);
  pop.catchBiomass.resize(static_cast<std::size_t>(Y));
  ComputeInitialNumbers(data, values, pop);
  for (int y = 0; y < Y; ++y) {
    pop.catchBiomass[y] = 0;
    if (y + 1 < Y)
      pop.N(y + 1, 0) = pop.recruitment[A + y];
    else
      pop.N(y + 1, 0) = exp(values.At(gMeanLogRec));
    for (int a = 0; a < A; ++a) {
      const T alive = exp(-pop.Z(y, a));
      const T survivors = pop.N(y, a) * alive;
      if (a + 1 < A)
        pop.N(y + 1, a + 1) = survivors;
      else
        pop.N(y + 1, a) += survivors;  // the plus group keeps its own
      pop.catchNumbers(y, a) = pop.F(y, a) / pop.Z(y, a) * (1 - alive) * pop.N(y, a);
      pop.catchBiomass[y] += pop.catchNumbers(y, a) * data.catchWeight(y, a);
    }
  }
}

// ---- Observations ----

// Each row of numbers as shares of its sum.
template <class T>
Grid<T> Proportions(const Grid<T>& numbers) {
  Grid<T> shares(numbers.rows, numbers.columns);
  for (int y = 0; y < numbers.rows; ++y) {
    T sum = 0;
    for (int a = 0; a < numbers.columns; ++a) sum += numbers(y, a);
    for (int a = 0; a < numbers.columns; ++a) shares(y, a) = numbers(y, a) / sum;
  }
  return shares;
}

// The numbers that a gear selects after its share of the year's mortality; ages that the index leaves out are
// 0. `selectivity` has one row per year, or one row for all years.
template <class T>
Grid<T> SelectedNumbers(const CaseData& data, const IndexSeries& series, const Grid<T>& selectivity, int row,
                        const Population<T>& pop) {
  using std::exp;
  Grid<T> numbers(data.nYears, data.nAges);
  for (int y = 0; y < data.nYears; ++y)
    for (int a = 0; a < data.nAges; ++a) {
      numbers(y, a) = 0;
      if (series.includesAge[a] != 1) continue;
      numbers(y, a) =
          selectivity(row < 0 ? y : row, a) * pop.N(y, a) * exp(-series.fractionOfZ * pop.Z(y, a));
    }
  return numbers;
}

// The mean of log(index) - exponent log(available) is the maximum likelihood estimate of log q. It is taken
// over the fitted years, over all usable ones when the series is not fitted, and is `fallback` when there is
// none at all.
template <class T>
T BestLogQ(const CaseData& data, const IndexSeries& series, const std::vector<T>& logAvailable,
           const T& exponent, const T& fallback) {
  std::vector<int> fitted;
  std::vector<int> usable;
  for (int i = 0; i < series.nYears; ++i) {
    if (series.Fitted(i)) fitted.push_back(i);
    if (series.Usable(i)) usable.push_back(i);
  }
  const std::vector<int>& used = fitted.empty() ? usable : fitted;
  if (used.empty()) return fallback;
  T sum = 0;
  for (const int i : used)
    sum += std::log(series.value[i] + data.epsilon) - exponent * logAvailable[series.year[i] - data.styr];
  return sum / static_cast<double>(used.size());
}

template <class T>
struct IndexParameters {
  T logQ;
  T exponent;
  bool qIsParameter;  // else it is the best one
};

template <class T>
IndexPrediction<T> PredictIndex(const CaseData& data, const IndexSeries& series, const Grid<T>& numbers,
                                const Grid<double>& weight, const IndexParameters<T>& parameters) {
  using std::exp;
  using std::log;
  const auto years = static_cast<std::size_t>(data.nYears);
  IndexPrediction<T> predicted;
  predicted.available.resize(years);
  predicted.index.resize(years);
  std::vector<T> logAvailable(years);
  for (int y = 0; y < data.nYears; ++y) {
    T available = 0;
    for (int a = 0; a < data.nAges; ++a) {
      if (series.includesAge[a] != 1) continue;
      if (series.inNumbers == 1)
        available += numbers(y, a);
      else
        available += numbers(y, a) * weight(y, a);
    }
    predicted.available[y] = available;
    logAvailable[y] = log(available + data.epsilon);
  }
  if (parameters.qIsParameter)
    predicted.logQ = parameters.logQ;
  else
    predicted.logQ = BestLogQ(data, series, logAvailable, parameters.exponent, parameters.logQ);
  for (int y = 0; y < data.nYears; ++y)
    predicted.index[y] = exp(predicted.logQ + parameters.exponent * logAvailable[y]);
  return predicted;
}

// `phase` decides whether a q that is estimated has become a parameter already.
template <class T>
Population<T> ComputePopulation(const CaseData& data, const ParameterValues<T>& values, int phase) {
  Population<T> pop;
  pop.fisherySelectivity = FisherySelectivity(data, values);
  pop.surveySelectivity = SurveySelectivity(data, values);
  ComputeMortality(data, values, pop);
  ComputeRecruitment(data, values, pop);
  ComputeNumbersAndCatch(data, values, pop);
  pop.fisheryProportion = Proportions(pop.catchNumbers);
  const auto isParameter = [&](Group group) {
    const ParameterGroup& g = values.layout->groups[group];
    return g.Estimated() && g.phase <= phase;
  };
  pop.survey.resize(static_cast<std::size_t>(data.nSurveys));  // a list that grew would record its copies
  for (int s = 0; s < data.nSurveys; ++s) {
    const IndexSeries& series = data.surveys[s].index;
    const Grid<T> numbers = SelectedNumbers(data, series, pop.surveySelectivity, s, pop);
    pop.surveyProportion.push_back(Proportions(numbers));
    pop.survey[s] =
        PredictIndex<T>(data, series, numbers, data.stockWeight,
                        {values.At(gLogQSurvey, s), values.At(gExpSurvey, s), isParameter(gLogQSurvey)});
  }
  if (data.cpue.isFitted == 1) {
    const Grid<T> numbers = SelectedNumbers(data, data.cpue, pop.fisherySelectivity, -1, pop);
    pop.cpue = PredictIndex<T>(data, data.cpue, numbers, data.catchWeight,
                               {values.At(gLogQCpue), values.At(gExpCpue), isParameter(gLogQCpue)});
  }
  return pop;
}

}  // namespace model
