// Quantities that follow from the fit and are reported with standard deviations.
#pragma once

#include "case_data.h"
#include "parameters.h"
#include "population.h"

#include <utility>
#include <vector>

namespace model {

// Units as Population; a year's element stands for styr + its place.
template <class T>
struct Derived {
  std::vector<T> qSurvey;             // S, of the selectivity scaled to 1 at the fully selected age
  std::vector<T> qCpue;               // 1, or none without a CPUE fit
  std::vector<T> meanRecruitment;     // 1, mean of age 1 over the years
  std::vector<T> populationBiomass;   // Y, start of year
  std::vector<T> spawningBiomass;     // Y, at spawning
  std::vector<T> exploitableBiomass;  // Y, start of year, selected by the fishery
  std::vector<T> recruitment;         // from the first deviation year to endyr
  std::vector<T> surplusProduction;   // Y - 1
  std::vector<T>
      depletion[3][2];  // population biomass, spawning biomass, full F: endyr over styr, endyr over depyr
  std::vector<T> lastNumbers;       // A, start of endyr
  std::vector<T> projectedNumbers;  // A, start of endyr + 1
  std::vector<T> fullF;             // Y, the largest F of the year
  std::vector<T> targetF, limitF;   // Y each, ratio to the criterion; none without a criterion
  std::vector<T> targetSpawning, limitSpawning;
};

enum Depletion { kOfPopulation, kOfSpawning, kOfFullF };
enum Reference { kToFirstYear, kToReferenceYear };

template <class T>
std::vector<T> Ratios(const CaseData& data, const std::vector<T>& values, double criterion) {
  std::vector<T> ratios;
  if (data.reportCriteria != 1 || criterion <= 0) return ratios;
  ratios.resize(values.size());
  for (std::size_t y = 0; y < values.size(); ++y) ratios[y] = values[y] / criterion;
  return ratios;
}

template <class T>
void ComputeReportedQ(const CaseData& data, const ParameterValues<T>& values, const Population<T>& pop,
                      Derived<T>& d) {
  using std::exp;
  using std::log;
  d.qSurvey.resize(static_cast<std::size_t>(data.nSurveys));
  for (int s = 0; s < data.nSurveys; ++s) {
    const T& full = pop.surveySelectivity(s, FullySelectedAge(pop.surveySelectivity, s));
    d.qSurvey[s] = exp(pop.survey[s].logQ + values.At(gExpSurvey, s) * log(full));
  }
  if (data.cpue.isFitted != 1) return;
  T sum = 0;
  for (int y = 0; y < data.nYears; ++y)
    sum += log(pop.fisherySelectivity(y, FullySelectedAge(pop.fisherySelectivity, y)));
  d.qCpue.resize(1);
  d.qCpue[0] = exp(pop.cpue.logQ + values.At(gExpCpue) * sum / data.nYears);
}

template <class T>
void ComputeBiomass(const CaseData& data, const Population<T>& pop, Derived<T>& d) {
  using std::exp;
  const auto years = static_cast<std::size_t>(data.nYears);
  for (std::vector<T>* list : {&d.populationBiomass, &d.spawningBiomass, &d.exploitableBiomass, &d.fullF})
    list->resize(years);
  for (int y = 0; y < data.nYears; ++y) {
    const int full = FullySelectedAge(pop.fisherySelectivity, y);
    T population = 0;
    T spawning = 0;
    T exploitable = 0;
    for (int a = 0; a < data.nAges; ++a) {
      population += pop.N(y, a) * data.stockWeight(y, a);
      spawning += pop.N(y, a) * exp(-data.fractionBeforeSpawning * pop.Z(y, a)) * data.maturity(y, a) *
                  data.spawningWeight(y, a);
      exploitable += pop.N(y, a) * data.catchWeight(y, a) * pop.fisherySelectivity(y, a);
    }
    d.populationBiomass[y] = population;
    d.spawningBiomass[y] = spawning;
    d.exploitableBiomass[y] = exploitable / pop.fisherySelectivity(y, full);
    d.fullF[y] = pop.F(y, full);
  }
}

template <class T>
Derived<T> ComputeDerived(const CaseData& data, const ParameterValues<T>& values, const Population<T>& pop) {
  const int Y = data.nYears;
  Derived<T> d;
  ComputeReportedQ(data, values, pop, d);
  ComputeBiomass(data, pop, d);

  T sum = 0;
  for (int y = 0; y < Y; ++y) sum += pop.N(y, 0);
  d.meanRecruitment.resize(1);
  d.meanRecruitment[0] = sum / Y;
  d.recruitment.assign(pop.recruitment.end() - data.DeviationCount(), pop.recruitment.end());
  d.surplusProduction.resize(static_cast<std::size_t>(Y - 1));
  for (int y = 0; y + 1 < Y; ++y)
    d.surplusProduction[y] = d.populationBiomass[y + 1] - d.populationBiomass[y] + pop.catchBiomass[y];

  const std::vector<T>* const series[] = {&d.populationBiomass, &d.spawningBiomass, &d.fullF};
  const int reference[] = {0, data.depyr - data.styr};
  for (int of = 0; of < 3; ++of)
    for (int to = 0; to < 2; ++to) {
      d.depletion[of][to].resize(1);
      d.depletion[of][to][0] = series[of]->back() / (*series[of])[reference[to]];
    }

  const auto lastRow = pop.N.cells.end() - data.nAges;
  d.lastNumbers.assign(lastRow - data.nAges, lastRow);
  d.projectedNumbers.assign(lastRow, pop.N.cells.end());
  d.targetF = Ratios(data, d.fullF, data.targetF);
  d.limitF = Ratios(data, d.fullF, data.limitF);
  d.targetSpawning = Ratios(data, d.spawningBiomass, data.targetSpawning);
  d.limitSpawning = Ratios(data, d.spawningBiomass, data.limitSpawning);
  return d;
}

// The quantities under the names and in the order of the standard deviation file, whose reader counts on
// both.
template <class T>
std::vector<std::pair<const char*, const std::vector<T>*>> NamedQuantities(const Derived<T>& d) {
  return {{"qSURVEY", &d.qSurvey},
          {"qCPUE", &d.qCpue},
          {"meanr", &d.meanRecruitment},
          {"popnbiom", &d.populationBiomass},
          {"spawnbiom", &d.spawningBiomass},
          {"explbiom", &d.exploitableBiomass},
          {"recruitment", &d.recruitment},
          {"surplus_production", &d.surplusProduction},
          {"deppopnbiom", &d.depletion[kOfPopulation][kToFirstYear]},
          {"deppopnbiom_depyr", &d.depletion[kOfPopulation][kToReferenceYear]},
          {"depspawnbiom", &d.depletion[kOfSpawning][kToFirstYear]},
          {"depspawnbiom_depyr", &d.depletion[kOfSpawning][kToReferenceYear]},
          {"depF", &d.depletion[kOfFullF][kToFirstYear]},
          {"depF_depyr", &d.depletion[kOfFullF][kToReferenceYear]},
          {"endN", &d.lastNumbers},
          {"projN", &d.projectedNumbers},
          {"fullF", &d.fullF},
          {"target_f_ratio", &d.targetF},
          {"limit_f_ratio", &d.limitF},
          {"target_spawnbiom_ratio", &d.targetSpawning},
          {"limit_spawnbiom_ratio", &d.limitSpawning}};
}

}  // namespace model
