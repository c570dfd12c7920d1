#include "fit.h"

#include "numbers.h"
#include "reweighting.h"

#include <chrono>
#include <set>

namespace model {

namespace {

constexpr double kConverged = 1e-4;     // the aim is the minimiser's tolerance, this is the verdict
constexpr int kMostParameters = 10000;  // a Hessian of 800 MB
constexpr int kMostRounds = 10;         // of reweighting
constexpr double kSettled = 0.01;       // relative change of sample sizes that ends the rounds

using Clock = std::chrono::steady_clock;

std::string SecondsSince(Clock::time_point begin) {
  return Fixed(std::chrono::duration<double>(Clock::now() - begin).count(), 2) + " s";
}

[[noreturn]] void RaiseNotFinite() {
  throw Failure(
      kNotFinite,
      "the objective function is not finite at the initial values; check the initial parameter values");
}

// A q whose phase begins starts from its best value of the moment, so that a bad value in the file does no
// harm.
void StartCatchabilities(Fit& fit, const Population<double>& before, int phase, const Messages& messages) {
  const auto& groups = fit.layout.groups;
  if (groups[gLogQSurvey].phase == phase) {
    for (int s = 0; s < fit.data.nSurveys; ++s) fit.values.At(gLogQSurvey, s) = before.survey[s].logQ;
    MoveInsideBounds(fit.values, gLogQSurvey, messages);
  }
  if (groups[gLogQCpue].phase == phase) {
    fit.values.At(gLogQCpue) = before.cpue.logQ;
    MoveInsideBounds(fit.values, gLogQCpue, messages);
  }
}

// Minimises over the groups of the phase in force. A recording is good for one minimisation: fixed values and
// sample sizes are constants of it.
Minimum MinimiseCurrentPhase(Fit& fit, const MinimiserLimits& limits) {
  const Vector start = CurrentFreeNumbers(fit);
  const std::unique_ptr<Recording> f = RecordObjective(fit);
  if (!std::isfinite(f->Value(start))) RaiseNotFinite();
  const Minimand minimand{[&f](const Vector& u) { return f->Value(u); },
                          [&f](const Vector& u, Vector& g) { return f->ValueAndGradient(u, g); },
                          [&f](const Vector& u) { return f->Hessian(u); }};
  const Minimum end = Minimise(minimand, start, limits);
  if (!std::isfinite(end.value)) RaiseNotFinite();
  double hold = 0;
  fit.values = FromFreeNumbers<double>(fit.values, fit.phase, {end.u.begin(), end.u.end()}, hold);
  fit.objective = end.value;
  fit.maxGradient = end.maxGradient;
  return end;
}

std::string ResultText(const Fit& fit) {
  return "objective " + Fixed(fit.objective, 6) + "  max gradient " + Exponential(fit.maxGradient);
}

void RunPhase(Fit& fit, int phase, const MinimiserLimits& limits, const Messages& messages) {
  const Clock::time_point begin = Clock::now();
  StartCatchabilities(fit, fit.CurrentPopulation(), phase, messages);
  fit.phase = phase;
  const Minimum end = MinimiseCurrentPhase(fit, limits);
  messages.Progress("phase " + PadLeft(std::to_string(phase), 2) + "  parameters " +
                    PadLeft(std::to_string(end.u.size()), 4) + "  evaluations " +
                    PadLeft(std::to_string(end.evaluations), 4) + "  Newton steps " +
                    PadLeft(std::to_string(end.newtonSteps), 2) + "  " + ResultText(fit) + "  " +
                    SecondsSince(begin));
}

void RunReweighting(Fit& fit, const MinimiserLimits& limits, const Messages& messages) {
  if (!WantsReweighting(fit.data)) return;
  double change = 1;
  for (int round = 1; round <= kMostRounds && change >= kSettled; ++round) {
    change = ReweightCompositions(fit.data, fit.CurrentPopulation(), fit.settings.sampleSizes);
    MinimiseCurrentPhase(fit, limits);
    messages.Progress("reweighting " + std::to_string(round) + "  largest change " + Fixed(change, 3) + "  " +
                      ResultText(fit));
  }
}

std::set<int> PhasesInUse(const ParameterLayout& layout) {
  std::set<int> phases;
  for (const ParameterGroup& group : layout.groups)
    if (group.Estimated()) phases.insert(group.phase);
  return phases;
}

}  // namespace

Fit::Fit(const CaseData& caseData, const StartValues& start, const Messages& messages)
    : data(caseData),
      layout(BuildLayout(caseData, start.annualAges)),
      values(BuildValues(layout, start, messages)),
      settings{ComputeSigmas(caseData, messages), InputSampleSizes(caseData), start.M} {}

Components<double> Fit::CurrentComponents(const Population<double>& population) const {
  double hold = 0;
  FromFreeNumbers(values, phase, FreeNumbers(values, phase), hold);
  return ComputeComponents(data, settings, values, population, hold);
}

Vector CurrentFreeNumbers(const Fit& fit) {
  const std::vector<double> u = FreeNumbers(fit.values, fit.phase);
  return Eigen::Map<const Vector>(u.data(), static_cast<Eigen::Index>(u.size()));
}

std::size_t OperationsGuess(const CaseData& data) {
  const auto cells = static_cast<std::size_t>(data.nYears) * static_cast<std::size_t>(data.nAges);
  return cells * static_cast<std::size_t>(data.nSurveys + 3) * 100;
}

std::unique_ptr<Recording> RecordObjective(const Fit& fit) {
  return std::make_unique<Recording>(
      RecordingKind::Objective, CurrentFreeNumbers(fit), OperationsGuess(fit.data),
      [&fit](const std::vector<adouble>& u) {
        adouble hold = 0;
        const ParameterValues<adouble> values = FromFreeNumbers(fit.values, fit.phase, u, hold);
        const Population<adouble> population = ComputePopulation(fit.data, values, fit.phase);
        std::vector<adouble> result(1);
        result[0] = ComputeComponents(fit.data, fit.settings, values, population, hold).Total();
        return result;
      });
}

void RunFit(Fit& fit, const FitLimits& limits, const Messages& messages) {
  const int estimated = fit.layout.EstimatedCount();
  if (estimated > kMostParameters)
    throw Failure(kInputFault, std::to_string(estimated) + " parameters are to be estimated, at most " +
                                   std::to_string(kMostParameters) + " are possible");
  if (estimated == 0) {
    fit.objective = fit.CurrentComponents(fit.CurrentPopulation()).Total();
    if (!std::isfinite(fit.objective)) RaiseNotFinite();
    fit.converged = true;
    return;
  }
  const int last = fit.layout.LastPhase();
  for (const int phase : PhasesInUse(fit.layout))
    RunPhase(fit, phase, phase == last ? limits.last : limits.early, messages);
  RunReweighting(fit, limits.last, messages);
  fit.converged = fit.maxGradient < kConverged;
}

}  // namespace model
