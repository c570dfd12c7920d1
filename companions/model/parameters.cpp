#include "parameters.h"

#include "numbers.h"

#include <algorithm>

namespace model {

namespace {

constexpr double kNearBound = 0.001;   // of the distance between the bounds
constexpr double kStartFInit = 0.1;    // initial fishing mortality, which the parameter file does not hold
constexpr double kSmallestLogQ = -30;  // also stands for a q of 0 or less
constexpr double kLargestLogGamma = -0.001;

struct Bounds {
  bool bounded;
  double low;
  double high;
};

constexpr Bounds kFree = {false, 0, 0};
constexpr Bounds kLogQ = {true, kSmallestLogQ, 15};
constexpr Bounds kExponent = {true, 0.1, 3};
constexpr Bounds kLogGamma = {true, -8, -0.1};
constexpr Bounds kLogBeta = {true, -4, 2.5};
constexpr Bounds kLogSelectivity = {true, -10, 10};

int Sum(const std::vector<int>& counts) {
  int sum = 0;
  for (const int n : counts) sum += n;
  return sum;
}

void Add(ParameterLayout& layout, Group group, const char* name, int count, bool wanted, int phase,
         const Bounds& bounds) {
  const int firstPhase = std::max(phase, 1);  // phase 0 counts as 1
  layout.groups[group] = {name,           layout.count, count,      wanted && phase >= 0 ? firstPhase : 0,
                          bounds.bounded, bounds.low,   bounds.high};
  layout.count += count;
}

void Fill(ParameterValues<double>& values, Group group, const std::vector<double>& list) {
  std::copy(list.begin(), list.end(), values.all.begin() + values.layout->groups[group].first);
}

double LogQ(double q) { return q > 0 ? std::log(q) : kSmallestLogQ; }

}  // namespace

int ParameterLayout::LastPhase() const {
  int last = 0;
  for (const ParameterGroup& group : groups) last = std::max(last, group.phase);
  return last;
}

int ParameterLayout::EstimatedCount() const {
  int estimated = 0;
  for (const ParameterGroup& group : groups)
    if (group.Estimated()) estimated += group.count;
  return estimated;
}

ParameterLayout BuildLayout(const CaseData& data, int annualAges) {
  const int P = data.nPeriods;
  const int S = data.nSurveys;
  const bool cpue = data.cpue.isFitted == 1;
  const bool fishCurve = data.parametricFishery == 1;
  const bool surveyCurve = data.parametricSurvey == 1;
  const Bounds logA50 = {true, -2, std::log(1.2 * data.nAges)};
  const auto& phase = data.phase;
  int surveySelectivities = 0;
  for (const Survey& survey : data.surveys) surveySelectivities += survey.lastSelectivityAge;

  ParameterLayout to;
  to.annualAges = annualAges;
  Add(to, gM, "M", 1, data.priorOfM > 0, phase[kPhaseM], {true, 0.01, 1.5});
  Add(to, gMeanLogRec, "mean_log_rec", 1, data.estimateMeanLogRec == 1, phase[kPhaseMeanLogRec], kFree);
  Add(to, gRecDev, "rec_dev", data.DeviationCount(), data.estimateRecDev == 1, phase[kPhaseRecDev], kFree);
  Add(to, gLogAvgFmort, "log_avg_fmort", 1, data.estimateLogAvgFmort == 1, phase[kPhaseLogAvgFmort], kFree);
  Add(to, gFmortDev, "fmort_dev", data.nYears, data.estimateFmortDev == 1, phase[kPhaseFmortDev], kFree);
  Add(to, gLogQCpue, "log_qCPUE", 1, cpue && data.estimateCpueQ == 1, phase[kPhaseCpueQ], kLogQ);
  Add(to, gExpCpue, "exp_CPUE", 1, cpue && data.estimateCpueExp == 1, phase[kPhaseCpueExp], kExponent);
  Add(to, gLogGammaFish, "log_gamma_FISH", P, fishCurve && data.flatToppedFishery == 0,
      phase[kPhaseGammaFish], kLogGamma);
  Add(to, gLogBetaFish, "log_beta_FISH", P, fishCurve, phase[kPhaseBetaFish], kLogBeta);
  Add(to, gLogA50Fish, "log_a50_FISH", P, fishCurve, phase[kPhaseA50Fish], logA50);
  Add(to, gLogSelFish, "log_selpar_FISH", Sum(data.lastSelectivityAge),
      !fishCurve && data.annualFisherySelectivity == 0, phase[kPhaseSelPeriodFish], kLogSelectivity);
  Add(to, gLogSelAnnual, "log_sel_annual_FISH", data.nYears * annualAges, data.AnnualFishery(),
      phase[kPhaseSelAnnualFish], kLogSelectivity);
  Add(to, gLogQSurvey, "log_qSURVEY", S, data.estimateSurveyQ == 1, phase[kPhaseSurveyQ], kLogQ);
  Add(to, gExpSurvey, "exp_SURVEY", S, data.estimateSurveyExp == 1, phase[kPhaseSurveyExp], kExponent);
  Add(to, gLogGammaSurvey, "log_gamma_SURVEY", S, surveyCurve && data.flatToppedSurvey == 0,
      phase[kPhaseGammaSurvey], kLogGamma);
  Add(to, gLogBetaSurvey, "log_beta_SURVEY", S, surveyCurve, phase[kPhaseBetaSurvey], kLogBeta);
  Add(to, gLogA50Survey, "log_a50_SURVEY", S, surveyCurve, phase[kPhaseA50Survey], logA50);
  Add(to, gLogSelSurvey, "log_selpar_SURVEY", surveySelectivities, !surveyCurve, phase[kPhaseSelPeriodSurvey],
      kLogSelectivity);
  // It has no phase of its own and goes with the level of fishing, but can not be left at a start value of
  // ours.
  Add(to, gLogFInit, "log_F_init", 1, data.estimateInitialF == 1, std::max(phase[kPhaseLogAvgFmort], 1),
      {true, -7, 1});
  return to;
}

void MoveInsideBounds(ParameterValues<double>& values, Group group, const Messages& messages) {
  const ParameterGroup& g = values.layout->groups[group];
  if (!g.Estimated() || !g.bounded) return;
  const double margin = kNearBound * (g.high - g.low);
  for (int i = 0; i < g.count; ++i) {
    double& x = values.At(group, i);
    const double inside = std::clamp(x, g.low + margin, g.high - margin);
    if (inside == x) continue;
    messages.Warning("initial value " + General(x) + " of " + g.name + " moved inside its bounds " +
                     General(g.low) + " to " + General(g.high));
    x = inside;
  }
}

ParameterValues<double> BuildValues(const ParameterLayout& layout, const StartValues& start,
                                    const Messages& messages) {
  ParameterValues<double> values;
  values.layout = &layout;
  values.all.resize(static_cast<std::size_t>(layout.count));
  values.At(gM) = start.M;
  values.At(gMeanLogRec) = start.meanLogRec;
  Fill(values, gRecDev, start.recDev);
  values.At(gLogAvgFmort) = start.logAvgFmort;
  Fill(values, gFmortDev, start.fmortDev);
  values.At(gLogQCpue) = LogQ(start.qCpue);
  values.At(gExpCpue) = start.expCpue;
  Fill(values, gLogGammaFish, start.logGammaFish);
  Fill(values, gLogBetaFish, start.logBetaFish);
  Fill(values, gLogA50Fish, start.logA50Fish);
  Fill(values, gLogSelFish, start.logSelFish);
  Fill(values, gLogSelAnnual, start.logSelAnnual);
  for (int s = 0; s < layout.groups[gLogQSurvey].count; ++s)
    values.At(gLogQSurvey, s) = LogQ(start.qSurvey[s]);
  Fill(values, gExpSurvey, start.expSurvey);
  Fill(values, gLogGammaSurvey, start.logGammaSurvey);
  Fill(values, gLogBetaSurvey, start.logBetaSurvey);
  Fill(values, gLogA50Survey, start.logA50Survey);
  Fill(values, gLogSelSurvey, start.logSelSurvey);
  values.At(gLogFInit) = std::log(kStartFInit);

  for (const Group group : {gLogGammaFish, gLogGammaSurvey})
    for (int i = 0; !layout.groups[group].Estimated() && i < layout.groups[group].count; ++i)
      values.At(group, i) = std::min(values.At(group, i), kLargestLogGamma);
  for (int group = 0; group < kGroups; ++group) {
    // A q starts from the fit of its phase, not from the file.
    if (group != gLogQCpue && group != gLogQSurvey)
      MoveInsideBounds(values, static_cast<Group>(group), messages);
  }
  return values;
}

std::vector<double> FreeNumbers(const ParameterValues<double>& values, int phase) {
  std::vector<double> u;
  for (const ParameterGroup& group : values.layout->groups) {
    if (!group.Estimated() || group.phase > phase) continue;
    for (int i = group.first; i < group.first + group.count; ++i) {
      const double x = values.all[i];
      u.push_back(group.bounded ? std::log((x - group.low) / (group.high - x)) : x);
    }
  }
  return u;
}

}  // namespace model
