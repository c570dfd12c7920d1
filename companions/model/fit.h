// The fit of one case: phases, reweighting of the age compositions, and the verdict.
#pragma once

#include "case_data.h"
#include "messages.h"
#include "minimiser.h"
#include "objective.h"
#include "parameters.h"
#include "recording.h"

#include <memory>

namespace model {

// Limits of the minimiser. Tests lower them to see a fit that ends early.
struct FitLimits {
  MinimiserLimits early = {0.01, 100, 3000};  // phases before the last
  MinimiserLimits last = {1e-6, 300, 3000};
};

// A fit: first its start, then its end. Not to be copied, since `values` points to `layout`.
struct Fit {
  const CaseData& data;
  ParameterLayout layout;
  ParameterValues<double> values;
  ObjectiveSettings settings;
  int phase = 0;  // last phase that has begun; 0 before the first
  double objective = 0;
  double maxGradient = 0;  // in the free numbers
  bool converged = false;

  Fit(const CaseData& caseData, const StartValues& start, const Messages& messages);
  Fit(const Fit&) = delete;
  Fit& operator=(const Fit&) = delete;

  Population<double> CurrentPopulation() const { return ComputePopulation(data, values, phase); }
  Components<double> CurrentComponents(const Population<double>& population) const;
};

// Runs all phases and the rounds of reweighting, with one line of progress each. Nothing to estimate is a fit
// too. Raises Failure(kNotFinite) when the objective function is not finite at the start or at the end of a
// phase, and Failure(kInputFault) when more parameters are to be estimated than a Hessian matrix in memory
// can hold.
void RunFit(Fit& fit, const FitLimits& limits, const Messages& messages);

// The free numbers of the phase in force, and the objective function as recorded there.
Vector CurrentFreeNumbers(const Fit& fit);
std::unique_ptr<Recording> RecordObjective(const Fit& fit);

// A generous guess of the operations that one evaluation of the model takes.
std::size_t OperationsGuess(const CaseData& data);

}  // namespace model
