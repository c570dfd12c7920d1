#include "reweighting.h"

#include <algorithm>
#include <cmath>

namespace model {

namespace {

constexpr double kSmallestSize = 1;
constexpr double kLargestSize = 5000;

bool FisheryIsReweighted(const CaseData& data) {
  return data.fishery.reweight == 1 && data.phase[kPhaseEssFish] >= 0;
}

bool SurveyIsReweighted(const CaseData& data, const Survey& survey) {
  return survey.composition.reweight == 1 && data.phase[kPhaseEssSurvey] >= 0;
}

double Reweight(const CaseData& data, const CompositionSeries& series, const Grid<double>& predicted,
                std::vector<double>& sizes) {
  const std::vector<double> effective = EffectiveSampleSizes(data, series, predicted);
  double inverses = 0;
  double inputs = 0;
  int years = 0;
  for (int i = 0; i < series.nYears; ++i) {
    if (!series.Fitted(i)) continue;
    inverses += 1 / effective[i];
    inputs += series.sampleSize[i];
    ++years;
  }
  if (years == 0) return 0;
  const double factor = (years / inverses) / (inputs / years);
  double largest = 0;
  for (int i = 0; i < series.nYears; ++i) {
    if (!series.Fitted(i)) continue;
    const double size = std::clamp(factor * series.sampleSize[i], kSmallestSize, kLargestSize);
    largest = std::max(largest, std::abs(size - sizes[i]) / sizes[i]);
    sizes[i] = size;
  }
  return largest;
}

}  // namespace

std::vector<double> EffectiveSampleSizes(const CaseData& data, const CompositionSeries& series,
                                         const Grid<double>& predicted) {
  constexpr double smallestDivisor = 1e-12;
  std::vector<double> sizes(static_cast<std::size_t>(series.nYears), 0.0);
  for (int i = 0; i < series.nYears; ++i) {
    if (!series.HasData(i)) continue;
    double variance = 0;
    double squares = 0;
    for (int a = 0; a < data.nAges; ++a) {
      if (series.includesAge[a] != 1) continue;
      const double ph = predicted(series.year[i] - data.styr, a);
      const double residual = series.proportion(i, a) - ph;
      variance += ph * (1 - ph);
      squares += residual * residual;
    }
    sizes[i] = variance / std::max(squares, smallestDivisor);
  }
  return sizes;
}

bool WantsReweighting(const CaseData& data) {
  return FisheryIsReweighted(data) ||
         std::any_of(data.surveys.begin(), data.surveys.end(),
                     [&data](const Survey& survey) { return SurveyIsReweighted(data, survey); });
}

double ReweightCompositions(const CaseData& data, const Population<double>& population, SampleSizes& sizes) {
  double largest = 0;
  if (FisheryIsReweighted(data))
    largest = Reweight(data, data.fishery, population.fisheryProportion, sizes.fishery);
  for (int s = 0; s < data.nSurveys; ++s)
    if (SurveyIsReweighted(data, data.surveys[s]))
      largest = std::max(largest, Reweight(data, data.surveys[s].composition, population.surveyProportion[s],
                                           sizes.survey[s]));
  return largest;
}

}  // namespace model
