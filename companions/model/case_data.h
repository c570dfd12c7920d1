// The data of one case: one stock, one fishery, S surveys, Y years, A ages. Ages are counted from 1 in the
// files and from 0 in the tables here; the last one is the plus group. Numbers of fish are in thousands and
// weights in kg, so that their product is in mt. Filled by ReadCaseData and not changed afterwards.
#pragma once

#include "grid.h"

#include <array>
#include <vector>

namespace model {

// A CPUE or survey index. The lists have one element per year of data.
struct IndexSeries {
  int nYears = 0;                // number of years of data
  std::vector<int> year;         // calendar years
  std::vector<int> fit;          // 1: the year counts in the objective function
  std::vector<double> value;     // observed index; <= 0 is missing
  std::vector<int> includesAge;  // A flags: the ages that the index measures
  double fractionOfZ = 0;        // share of the year's mortality before the index is taken, 0..1
  int isFitted = 0;              // 0: no year of the series is fitted, whatever `fit` says
  int inNumbers = 0;             // 1: index of numbers, 0: of biomass
  double emphasis = 0;           // inverse variance of the log index

  bool Usable(int i) const { return value[i] > 0; }
  bool Fitted(int i) const { return isFitted == 1 && fit[i] == 1 && Usable(i); }
};

// Age compositions of the fishery or of a survey.
struct CompositionSeries {
  int nYears = 0;                  // number of years of data
  std::vector<int> year;           // calendar years
  std::vector<int> fit;            // 1: the year counts in the objective function
  std::vector<double> sampleSize;  // input sample size, number of fish that the row is worth
  Grid<double> proportion;         // nYears x A, rows sum to 1, or are 0 throughout: no data
  std::vector<int> includesAge;    // A flags
  double emphasis = 0;             // factor of the log-likelihood
  int reweight = 0;                // 1: sample sizes are estimated from the fit

  bool HasData(int i) const {
    for (int a = 0; a < proportion.columns; ++a)
      if (proportion(i, a) > 0) return true;
    return false;
  }
  bool Fitted(int i) const { return fit[i] == 1 && sampleSize[i] > 0 && HasData(i); }
};

struct Survey {
  IndexSeries index;
  CompositionSeries composition;  // of the same years and ages as the index
  int lastSelectivityAge = 0;     // n(s), 1..A: older ages have the selectivity of this one
};

// The twenty phases, in the order of the data file. A negative phase leaves the parameter at its start value.
enum PhaseItem {
  kPhaseM,
  kPhaseMeanLogRec,
  kPhaseRecDev,
  kPhaseLogAvgFmort,
  kPhaseFmortDev,
  kPhaseCpueQ,
  kPhaseCpueExp,
  kPhaseGammaFish,
  kPhaseBetaFish,
  kPhaseA50Fish,
  kPhaseSelPeriodFish,
  kPhaseSelAnnualFish,
  kPhaseEssFish,
  kPhaseSurveyQ,
  kPhaseSurveyExp,
  kPhaseGammaSurvey,
  kPhaseBetaSurvey,
  kPhaseA50Survey,
  kPhaseSelPeriodSurvey,
  kPhaseEssSurvey,
  kPhaseItems
};

// The standard deviations of the log-scale deviations, from the coefficients of variation.
struct Sigmas {
  double recruitment = 0;
  double catchBiomass = 0;
  double fishing = 0;
};

struct CaseData {
  // Dimensions
  int styr = 0;      // first year
  int endyr = 0;     // last year
  int recyr = 0;     // first year with a recruitment of its own; styr gives the initial ages deviations too
  int depyr = 0;     // reference year of the reported ratios
  int nAges = 0;     // A
  int nSurveys = 0;  // S
  int nPeriods = 0;  // P, periods of constant fishery selectivity
  int nYears = 0;    // Y = endyr - styr + 1

  // Fishery selectivity
  std::vector<int> periodStart;         // P years, rising; the first is styr
  std::vector<int> lastSelectivityAge;  // n(p), 1..A
  int parametricFishery = 0;            // 1: curve, 0: a value per age
  std::vector<int> smoother;            // 3 flags: penalise first, second, third differences over ages

  // Observations
  std::vector<double> catchBiomass;  // Y, mt; 0: the fishery was closed
  IndexSeries cpue;
  CompositionSeries fishery;
  std::vector<Survey> surveys;
  int parametricSurvey = 0;  // one choice for all surveys

  // Biology
  Grid<double> catchWeight;           // Y x A, kg
  Grid<double> stockWeight;           // Y x A, kg, at the start of the year
  Grid<double> spawningWeight;        // Y x A, kg
  double fractionBeforeSpawning = 0;  // of the year's mortality, 0..1
  Grid<double> maturity;              // Y x A
  std::vector<double> multM;          // A, natural mortality at age relative to M

  // Assumed errors, weights of the components of the objective function
  double cvM = 0;
  double cvRecruitment = 0;
  double cvCatch = 0;
  double cvFishing = 0;
  double emphasisRecruitment = 0;
  double emphasisCatch = 0;
  double emphasisSelectivity = 0;
  double emphasisFishing = 0;
  int shrinkageYears = 0;  // the last years whose recruitment is drawn more strongly to the mean
  double shrinkageCoefficient = 0;
  int nBoot = 0;       // replicates asked for; none are run
  int seed = 0;        // of the replicates
  double epsilon = 0;  // keeps logarithms of 0 finite

  // What is estimated: 1 yes, 0 no
  int priorOfM = 0;  // 0: M is fixed; 1 lognormal, 2 normal, 3 gamma prior
  int estimateMeanLogRec = 0;
  int estimateRecDev = 0;
  int estimateLogAvgFmort = 0;
  int estimateFmortDev = 0;
  int annualFisherySelectivity = 0;  // only of use with a value per age
  int estimateCpueQ = 0;
  int estimateCpueExp = 0;
  int estimateSurveyQ = 0;
  int estimateSurveyExp = 0;
  int flatToppedFishery = 0;  // parametric form only
  int flatToppedSurvey = 0;
  int estimateInitialF = 0;
  double initialCatch = 0;  // mt a year before styr, taken at equilibrium
  std::array<int, kPhaseItems> phase{};

  // Status determination; a criterion of 0 is not reported
  int reportCriteria = 0;
  double targetF = 0;
  double limitF = 0;
  double targetSpawning = 0;  // mt
  double limitSpawning = 0;   // mt

  // First year of the recruitment deviations.
  int FirstDeviationYear() const { return estimateInitialF == 1 || recyr == styr ? styr - nAges + 1 : recyr; }
  int DeviationCount() const { return endyr - FirstDeviationYear() + 1; }

  // The period (from 0) of a year (from 0): the last one that has begun.
  int PeriodOf(int y) const {
    int p = 0;
    while (p + 1 < nPeriods && periodStart[p + 1] <= styr + y) ++p;
    return p;
  }
  bool AnnualFishery() const { return parametricFishery == 0 && annualFisherySelectivity == 1; }
};

// What the parameter file holds, in its order. Log selectivities are centred: each vector has mean 0.
struct StartValues {
  double M = 0;
  double meanLogRec = 0;
  std::vector<double> recDev;  // from FirstDeviationYear to endyr
  double logAvgFmort = 0;
  std::vector<double> fmortDev;  // Y
  double qCpue = 0;
  double expCpue = 0;
  std::vector<double> logGammaFish, logBetaFish, logA50Fish;        // P each
  std::vector<double> logSelFish;                                   // n(1) + ... + n(P)
  std::vector<double> qSurvey, expSurvey;                           // S each
  std::vector<double> logGammaSurvey, logBetaSurvey, logA50Survey;  // S each
  std::vector<double> logSelSurvey;                                 // n(1) + ... + n(S)
  std::vector<double> logSelAnnual;                                 // Y x annualAges
  int annualAges = 0;                                               // k, found from the length of the file
};

}  // namespace model
