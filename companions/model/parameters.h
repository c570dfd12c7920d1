// The parameters of the model: groups, bounds, phases, and the free numbers u in which the minimiser works.
//
// An estimated parameter x with bounds lo and hi is x = lo + (hi - lo) / (1 + exp(-u)); any other estimated
// one is its own u. Values of all groups, fixed ones too, lie in one list.
#pragma once

#include "case_data.h"
#include "messages.h"

#include <array>
#include <cmath>
#include <vector>

namespace model {

// In the order of the output files.
enum Group {
  gM,
  gMeanLogRec,
  gRecDev,
  gLogAvgFmort,
  gFmortDev,
  gLogQCpue,
  gExpCpue,
  gLogGammaFish,
  gLogBetaFish,
  gLogA50Fish,
  gLogSelFish,
  gLogSelAnnual,
  gLogQSurvey,
  gExpSurvey,
  gLogGammaSurvey,
  gLogBetaSurvey,
  gLogA50Survey,
  gLogSelSurvey,
  gLogFInit,
  kGroups
};

struct ParameterGroup {
  const char* name = "";
  int first = 0;  // place of the first element in the list of values
  int count = 0;  // number of elements
  int phase = 0;  // phase from which on it is estimated, 1 or later; 0: fixed
  bool bounded = false;
  double low = 0;  // bounds, of the model's scale
  double high = 0;

  bool Estimated() const { return phase > 0; }
};

struct ParameterLayout {
  std::array<ParameterGroup, kGroups> groups;
  int count = 0;       // elements of all groups together
  int annualAges = 0;  // k, ages of the annual fishery selectivities

  int LastPhase() const;
  int EstimatedCount() const;
};

// The values of all parameters in their own scale; qCPUE and qSURVEY as logarithms.
template <class T>
struct ParameterValues {
  const ParameterLayout* layout = nullptr;
  std::vector<T> all;

  const T& At(Group group, int i = 0) const { return all[(*layout).groups[group].first + i]; }
  T& At(Group group, int i = 0) { return all[(*layout).groups[group].first + i]; }
};

// Which groups of `data` are estimated, in which phases, within which bounds.
ParameterLayout BuildLayout(const CaseData& data, int annualAges);

// The start values in the model's scale. Those of estimated parameters are moved inside their bounds, with a
// warning; a fixed log_gamma is held below 0, where its curve ends.
ParameterValues<double> BuildValues(const ParameterLayout& layout, const StartValues& start,
                                    const Messages& messages);

// Moves the values of an estimated, bounded group at least a thousandth of the bounds' distance inside, with
// a warning.
void MoveInsideBounds(ParameterValues<double>& values, Group group, const Messages& messages);

// The free numbers of the groups that are estimated in `phase`.
std::vector<double> FreeNumbers(const ParameterValues<double>& values, int phase);

// The other way round: `values` with the groups that are estimated in `phase` taken from u. Other groups keep
// the value. Adds to `hold` the weak hold 0.005 u^2 of every bounded parameter that is estimated in `phase`:
// it costs next to nothing, keeps u finite when an estimate runs to a bound, and gives the Hessian a
// curvature where the data have none.
template <class T>
ParameterValues<T> FromFreeNumbers(const ParameterValues<double>& values, int phase, const std::vector<T>& u,
                                   T& hold) {
  using std::exp;
  ParameterValues<T> result;
  result.layout = values.layout;
  result.all.assign(values.all.begin(), values.all.end());
  std::size_t next = 0;
  for (const ParameterGroup& group : values.layout->groups) {
    if (!group.Estimated() || group.phase > phase) continue;
    for (int i = group.first; i < group.first + group.count; ++i) {
      const T& x = u[next++];
      if (group.bounded) {
        result.all[i] = group.low + (group.high - group.low) / (1 + exp(-x));
        hold += 0.005 * x * x;
      } else {
        result.all[i] = x;
      }
    }
  }
  return result;
}

}  // namespace model
