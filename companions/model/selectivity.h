// Selectivity at age: three forms, each positive, with the ages above n having the value of age n.
#pragma once

#include "case_data.h"
#include "number_type.h"
#include "parameters.h"

#include <vector>

namespace model {

// beta (a50 - a), held below the point where exp would overflow: a case of very many ages reaches it within
// the bounds.
template <class T>
T LogisticExponent(const T& beta, const T& a50, double age) {
  constexpr double safe = 600;
  const T exponent = beta * (a50 - age);
  return HeldTo(exponent, safe);
}

// The logistic curve, scaled to 1 at age n.
template <class T>
std::vector<T> FlatToppedSelectivity(const T& logBeta, const T& logA50, int n, int nAges) {
  using std::exp;
  const T beta = exp(logBeta);
  const T a50 = exp(logA50);
  const T top = 1 + exp(LogisticExponent(beta, a50, n));
  std::vector<T> s(static_cast<std::size_t>(nAges));
  for (int a = 1; a <= nAges; ++a)
    s[a - 1] = a > n ? s[n - 1] : T(top / (1 + exp(LogisticExponent(beta, a50, a))));
  return s;
}

// The exponential-logistic curve of Thompson (1994), greatest value 1 over real ages, falling at older ages.
template <class T>
std::vector<T> DomedSelectivity(const T& logGamma, const T& logBeta, const T& logA50, int n, int nAges) {
  using std::exp;
  using std::log;
  const T gamma = exp(logGamma);
  const T beta = exp(logBeta);
  const T a50 = exp(logA50);
  const T logRest = log(1 - gamma);
  const T scale = gamma * (logRest - logGamma) - logRest;
  std::vector<T> s(static_cast<std::size_t>(nAges));
  for (int a = 1; a <= nAges; ++a) {
    if (a > n) {
      s[a - 1] = s[n - 1];
      continue;
    }
    const T x = LogisticExponent(beta, a50, a);
    s[a - 1] = exp(scale + gamma * x) / (1 + exp(x));
  }
  return s;
}

// One log selectivity per age 1..n, from element `first` of a group on; the mean selectivity over these ages
// is 1.
template <class T>
std::vector<T> FreeSelectivity(const ParameterValues<T>& values, Group group, int first, int n, int nAges) {
  using std::exp;
  std::vector<T> s(static_cast<std::size_t>(nAges));
  T sum = 0;
  for (int a = 0; a < n; ++a) {
    s[a] = exp(values.At(group, first + a));
    sum += s[a];
  }
  const T mean = sum / n;
  for (int a = 0; a < n; ++a) s[a] = s[a] / mean;
  for (int a = n; a < nAges; ++a) s[a] = s[n - 1];
  return s;
}

template <class T>
void PutRow(Grid<T>& table, int row, const std::vector<T>& values) {
  for (int a = 0; a < table.columns; ++a) table(row, a) = values[a];
}

// Y x A, not scaled to the fully selected age.
template <class T>
Grid<T> FisherySelectivity(const CaseData& data, const ParameterValues<T>& values) {
  const int A = data.nAges;
  Grid<T> table(data.nYears, A);
  if (data.AnnualFishery()) {
    const int k = values.layout->annualAges;
    for (int y = 0; y < data.nYears; ++y)
      PutRow(table, y, FreeSelectivity(values, gLogSelAnnual, y * k, k, A));
    return table;
  }
  std::vector<std::vector<T>> ofPeriod;
  int first = 0;
  for (int p = 0; p < data.nPeriods; ++p) {
    const int n = data.lastSelectivityAge[p];
    if (data.parametricFishery == 0)
      ofPeriod.push_back(FreeSelectivity(values, gLogSelFish, first, n, A));
    else if (data.flatToppedFishery == 1)
      ofPeriod.push_back(FlatToppedSelectivity(values.At(gLogBetaFish, p), values.At(gLogA50Fish, p), n, A));
    else
      ofPeriod.push_back(DomedSelectivity(values.At(gLogGammaFish, p), values.At(gLogBetaFish, p),
                                          values.At(gLogA50Fish, p), n, A));
    first += n;
  }
  for (int y = 0; y < data.nYears; ++y) PutRow(table, y, ofPeriod[data.PeriodOf(y)]);
  return table;
}

// S x A, not scaled.
template <class T>
Grid<T> SurveySelectivity(const CaseData& data, const ParameterValues<T>& values) {
  const int A = data.nAges;
  Grid<T> table(data.nSurveys, A);
  int first = 0;
  for (int s = 0; s < data.nSurveys; ++s) {
    const int n = data.surveys[s].lastSelectivityAge;
    if (data.parametricSurvey == 0)
      PutRow(table, s, FreeSelectivity(values, gLogSelSurvey, first, n, A));
    else if (data.flatToppedSurvey == 1)
      PutRow(table, s,
             FlatToppedSelectivity(values.At(gLogBetaSurvey, s), values.At(gLogA50Survey, s), n, A));
    else
      PutRow(table, s,
             DomedSelectivity(values.At(gLogGammaSurvey, s), values.At(gLogBetaSurvey, s),
                              values.At(gLogA50Survey, s), n, A));
    first += n;
  }
  return table;
}

// a*, from 0: the youngest age with the greatest selectivity of a row.
template <class T>
int FullySelectedAge(const Grid<T>& selectivity, int row) {
  int best = 0;
  for (int a = 1; a < selectivity.columns; ++a)
    if (PresentValue(selectivity(row, a)) > PresentValue(selectivity(row, best))) best = a;
  return best;
}

}  // namespace model
