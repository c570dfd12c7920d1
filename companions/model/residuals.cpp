#include "residuals.h"

#include <algorithm>
#include <cmath>

namespace model {

double RootMeanSquare(const std::vector<double>& values) {
  if (values.empty()) return 0;
  double sum = 0;
  for (const double v : values) sum += v * v;
  return std::sqrt(sum / static_cast<double>(values.size()));
}

IndexResiduals ComputeIndexResiduals(const CaseData& data, const IndexSeries& series,
                                     const IndexPrediction<double>& predicted) {
  const auto n = static_cast<std::size_t>(series.nYears);
  IndexResiduals r;
  r.plain.resize(n);
  r.logScale.resize(n);
  r.standardized.resize(n);
  std::vector<double> logScale;
  for (int i = 0; i < series.nYears; ++i) {
    if (!series.Fitted(i)) continue;
    const double expected = predicted.index[series.year[i] - data.styr];
    r.plain[i] = series.value[i] - expected;
    r.logScale[i] = std::log(series.value[i] + data.epsilon) - std::log(expected + data.epsilon);
    logScale.push_back(*r.logScale[i]);
  }
  r.rootMeanSquare = RootMeanSquare(logScale);
  for (std::size_t i = 0; i < n; ++i)
    if (r.logScale[i]) r.standardized[i] = *r.logScale[i] / r.rootMeanSquare;
  return r;
}

CompositionResiduals ComputeCompositionResiduals(const CaseData& data, const CompositionSeries& series,
                                                 const std::vector<double>& sampleSize,
                                                 const Grid<double>& predicted) {
  constexpr double smallestVariance = 1e-12;
  CompositionResiduals r;
  r.observed = r.plain = r.standardized = Grid<std::optional<double>>(series.nYears, data.nAges);
  for (int i = 0; i < series.nYears; ++i) {
    std::vector<double> included;
    for (int a = 0; a < data.nAges; ++a) {
      const double ph = predicted(series.year[i] - data.styr, a);
      const double residual = series.proportion(i, a) - ph;
      const bool isIncluded = series.includesAge[a] == 1;
      if (isIncluded) included.push_back(residual);
      if (!series.HasData(i)) continue;
      const double variance = std::max(ph * (1 - ph), smallestVariance) / std::max(sampleSize[i], 1.0);
      r.observed(i, a) = series.proportion(i, a);
      r.plain(i, a) = residual;
      r.standardized(i, a) = isIncluded ? residual / std::sqrt(variance) : 0;
    }
    r.rootMeanSquare.push_back(series.HasData(i) ? RootMeanSquare(included) : 0);
  }
  return r;
}

double LogCatchResidual(const CaseData& data, const Population<double>& population, int y) {
  return std::log(data.catchBiomass[y] + data.epsilon) - std::log(population.catchBiomass[y] + data.epsilon);
}

}  // namespace model
