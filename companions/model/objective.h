// The objective function: minus the log-likelihood of the data plus penalties and priors, by component.
//
// Constants are left out, so that a perfect fit gives 0 in every data component. Lognormal catches and
// indices, and multinomial age compositions, as Fournier and Archibald (1982) have them.
#pragma once

#include "case_data.h"
#include "parameters.h"
#include "population.h"

#include <vector>

namespace model {

// Sample sizes in force, of every row of age data: those of the file until the fit has reweighted them.
struct SampleSizes {
  std::vector<double> fishery;
  std::vector<std::vector<double>> survey;
};

// What the objective function needs besides the data and the parameters.
struct ObjectiveSettings {
  Sigmas sigma;
  SampleSizes sampleSizes;
  double centreOfM = 0;  // of the prior of M
};

// Each component already has its emphasis.
template <class T>
struct Components {
  T recruitment = 0;
  T fisheryComposition = 0;
  std::vector<T> surveyComposition;  // S
  T fisherySelectivity = 0;
  T catchBiomass = 0;
  T cpue = 0;
  std::vector<T> surveyIndex;  // S
  T fishing = 0;
  T other = 0;  // priors, scale of deviations and selectivities, weak hold of bounded parameters

  T Total() const {
    T total = recruitment + fisheryComposition + fisherySelectivity + catchBiomass + cpue + fishing + other;
    for (const T& c : surveyComposition) total += c;
    for (const T& c : surveyIndex) total += c;
    return total;
  }
};

// The standard deviations on the log scale, sqrt(log(1 + CV^2)), at least 0.01; warns when that floor takes
// effect.
Sigmas ComputeSigmas(const CaseData& data, const Messages& messages);

SampleSizes InputSampleSizes(const CaseData& data);

// 0.5 x^2
template <class T>
T HalfSquare(const T& x) {
  return 0.5 * x * x;
}

template <class T>
T CompositionMisfit(const CaseData& data, const CompositionSeries& series,
                    const std::vector<double>& sampleSize, const Grid<T>& predicted) {
  using std::log;
  T sum = 0;
  for (int i = 0; i < series.nYears; ++i) {
    if (!series.Fitted(i)) continue;
    T row = 0;
    for (int a = 0; a < data.nAges; ++a) {
      const double p = series.proportion(i, a);
      if (p > 0)
        row +=
            p * (std::log(p + data.epsilon) - log(predicted(series.year[i] - data.styr, a) + data.epsilon));
    }
    sum += sampleSize[i] * row;
  }
  return series.emphasis * sum;
}

template <class T>
T IndexMisfit(const CaseData& data, const IndexSeries& series, const IndexPrediction<T>& predicted) {
  using std::log;
  T sum = 0;
  for (int i = 0; i < series.nYears; ++i) {
    if (!series.Fitted(i)) continue;
    const T residual = std::log(series.value[i] + data.epsilon) -
                       log(predicted.index[series.year[i] - data.styr] + data.epsilon);
    sum += HalfSquare(residual);
  }
  return series.emphasis * sum;
}

template <class T>
T CatchMisfit(const CaseData& data, double sigma, const Population<T>& pop) {
  using std::log;
  T sum = 0;
  for (int y = 0; y < data.nYears; ++y) {
    if (data.catchBiomass[y] <= 0) continue;
    const T residual =
        (std::log(data.catchBiomass[y] + data.epsilon) - log(pop.catchBiomass[y] + data.epsilon)) / sigma;
    sum += HalfSquare(residual);
  }
  if (data.estimateInitialF == 1) {
    const T residual =
        (std::log(data.initialCatch + data.epsilon) - log(pop.initialCatch + data.epsilon)) / sigma;
    sum += HalfSquare(residual);
  }
  return data.emphasisCatch * sum;
}

template <class T>
T RecruitmentPenalty(const CaseData& data, double sigma, const ParameterValues<T>& values) {
  const int R = data.DeviationCount();
  T sum = 0;
  for (int i = 0; i < R; ++i) {
    const double weight = i >= R - data.shrinkageYears ? data.shrinkageCoefficient : 1;
    const T deviation = values.At(gRecDev, i) / sigma;
    sum += weight * HalfSquare(deviation);
  }
  return data.emphasisRecruitment * sum;
}

// A year without catch has no other hold on its deviation than the one that `closed` asks for.
template <class T>
T FishingPenalty(const CaseData& data, double sigma, const ParameterValues<T>& values, bool closed) {
  T sum = 0;
  for (int y = 0; y < data.nYears; ++y) {
    if ((data.catchBiomass[y] <= 0) != closed) continue;
    const T deviation = values.At(gFmortDev, y) / sigma;
    sum += HalfSquare(deviation);
  }
  return sum;
}

// A vector of log selectivities: `count` elements of a group, from `first` on.
struct SelectivityVector {
  Group group;
  int first;
  int count;
};

// The fishery's vectors in use, and all that are estimated.
std::vector<SelectivityVector> FisherySelectivityVectors(const CaseData& data, const ParameterLayout& layout);
std::vector<SelectivityVector> EstimatedSelectivityVectors(const CaseData& data,
                                                           const ParameterLayout& layout);

// Differences over ages, as far as they are switched on, and a random walk over the years of the annual form.
template <class T>
T SelectivityPenalty(const CaseData& data, const ParameterValues<T>& values) {
  constexpr double sigmaOfDifference = 0.5;
  constexpr double sigmaOfWalk = 0.2;
  const std::vector<SelectivityVector> vectors = FisherySelectivityVectors(data, *values.layout);
  T sum = 0;
  for (const SelectivityVector& v : vectors) {
    std::vector<T> difference(static_cast<std::size_t>(v.count));
    for (int a = 0; a < v.count; ++a) difference[a] = values.At(v.group, v.first + a);
    for (int order = 1; order <= 3; ++order)
      for (int a = 0; a + order < v.count; ++a) {
        difference[a] = difference[a + 1] - difference[a];
        const T scaled = difference[a] / sigmaOfDifference;
        if (data.smoother[order - 1] == 1) sum += HalfSquare(scaled);
      }
  }
  for (std::size_t y = 1; data.AnnualFishery() && y < vectors.size(); ++y)
    for (int a = 0; a < vectors[y].count; ++a) {
      const T step = (values.At(gLogSelAnnual, vectors[y].first + a) -
                      values.At(gLogSelAnnual, vectors[y - 1].first + a)) /
                     sigmaOfWalk;
      sum += HalfSquare(step);
    }
  return data.emphasisSelectivity * sum;
}

// 0.5 (mean / 0.1)^2: fixes a level that the data leave open.
template <class T>
T LevelPenalty(const ParameterValues<T>& values, Group group, int first, int count) {
  constexpr double sigmaOfMean = 0.1;
  T sum = 0;
  for (int i = 0; i < count; ++i) sum += values.At(group, first + i);
  const T scaled = sum / (count * sigmaOfMean);
  return HalfSquare(scaled);
}

// Minus the logarithm of the prior's density, less its value at the centre. The forms are those that the user
// sees plotted: the standard deviation of the lognormal is CV times centre on the log scale too, and the
// gamma takes the CV for its shape.
template <class T>
T PriorOfM(const CaseData& data, const ParameterValues<T>& values, double centre) {
  using std::log;
  const T& M = values.At(gM);
  const double sigma = data.cvM * centre;
  if (data.priorOfM == 1) {
    const T ratio = log(M + data.epsilon) - std::log(centre + data.epsilon);
    const T scaled = ratio / sigma;
    return HalfSquare(scaled) + ratio;
  }
  if (data.priorOfM == 2) {
    const T scaled = (M - centre) / sigma;
    return HalfSquare(scaled);
  }
  const T ratio = (M + data.epsilon) / centre;
  return data.cvM * (ratio - 1) - (data.cvM - 1) * log(ratio);
}

template <class T>
T OtherPenalties(const CaseData& data, const ObjectiveSettings& settings, const ParameterValues<T>& values) {
  const auto& groups = values.layout->groups;
  T sum = FishingPenalty(data, settings.sigma.fishing, values, true);
  if (groups[gRecDev].Estimated() && groups[gMeanLogRec].Estimated())
    sum += LevelPenalty(values, gRecDev, 0, groups[gRecDev].count);
  if (groups[gFmortDev].Estimated() && groups[gLogAvgFmort].Estimated())
    sum += LevelPenalty(values, gFmortDev, 0, groups[gFmortDev].count);
  for (const SelectivityVector& v : EstimatedSelectivityVectors(data, *values.layout))
    sum += LevelPenalty(values, v.group, v.first, v.count);
  if (groups[gM].Estimated()) sum += PriorOfM(data, values, settings.centreOfM);
  return sum;
}

// `weakHold` comes from FromFreeNumbers.
template <class T>
Components<T> ComputeComponents(const CaseData& data, const ObjectiveSettings& settings,
                                const ParameterValues<T>& values, const Population<T>& pop,
                                const T& weakHold) {
  Components<T> c;
  const auto S = static_cast<std::size_t>(data.nSurveys);
  c.surveyComposition.resize(S);
  c.surveyIndex.resize(S);
  c.recruitment = RecruitmentPenalty(data, settings.sigma.recruitment, values);
  c.fisheryComposition =
      CompositionMisfit(data, data.fishery, settings.sampleSizes.fishery, pop.fisheryProportion);
  for (int s = 0; s < data.nSurveys; ++s) {
    const Survey& survey = data.surveys[s];
    c.surveyComposition[s] =
        CompositionMisfit(data, survey.composition, settings.sampleSizes.survey[s], pop.surveyProportion[s]);
    c.surveyIndex[s] = 0;
    if (survey.index.isFitted == 1) c.surveyIndex[s] = IndexMisfit(data, survey.index, pop.survey[s]);
  }
  c.fisherySelectivity = SelectivityPenalty(data, values);
  c.catchBiomass = CatchMisfit(data, settings.sigma.catchBiomass, pop);
  if (data.cpue.isFitted == 1) c.cpue = IndexMisfit(data, data.cpue, pop.cpue);
  c.fishing = data.emphasisFishing * FishingPenalty(data, settings.sigma.fishing, values, false);
  c.other = OtherPenalties(data, settings, values) + weakHold;
  return c;
}

}  // namespace model
