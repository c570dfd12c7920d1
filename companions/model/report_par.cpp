#include "report_par.h"

#include "derived.h"
#include "report_text.h"

namespace model {

namespace {

// A group's values on lines of the given lengths.
void WriteGroup(std::string& text, const Fit& fit, Group group, const char* name,
                const std::vector<int>& lengths) {
  text += "# " + std::string(name) + ":\n";
  int next = 0;
  for (const int length : lengths) {
    const double* const begin = &fit.values.At(group, next);
    text += Joined(std::vector<double>(begin, begin + length)) + '\n';
    next += length;
  }
}

void WriteGroup(std::string& text, const Fit& fit, Group group) {
  const ParameterGroup& g = fit.layout.groups[group];
  WriteGroup(text, fit, group, g.name, {g.count});
}

void WriteList(std::string& text, const char* name, const std::vector<double>& values) {
  text += "# " + std::string(name) + ":\n" + Joined(values) + '\n';
}

}  // namespace

std::string ParameterFileText(const Fit& fit, const StartValues& start,
                              const Population<double>& population) {
  const CaseData& data = fit.data;
  const Derived<double> derived = ComputeDerived(data, fit.values, population);
  std::vector<int> surveyAges;
  for (const Survey& survey : data.surveys) surveyAges.push_back(survey.lastSelectivityAge);
  const std::vector<int> years(static_cast<std::size_t>(data.nYears), fit.layout.annualAges);

  std::string text = "# Number of parameters = " + std::to_string(fit.layout.EstimatedCount()) +
                     "  Objective function value = " + General(fit.objective) +
                     "  Maximum gradient component = " + General(fit.maxGradient) + '\n';
  for (const Group group : {gM, gMeanLogRec, gRecDev, gLogAvgFmort, gFmortDev}) WriteGroup(text, fit, group);
  WriteList(text, "qCPUE", derived.qCpue.empty() ? std::vector<double>{start.qCpue} : derived.qCpue);
  for (const Group group : {gExpCpue, gLogGammaFish, gLogBetaFish, gLogA50Fish}) WriteGroup(text, fit, group);
  WriteGroup(text, fit, gLogSelFish, "log_selpar_FISH", data.lastSelectivityAge);
  WriteList(text, "qSURVEY", derived.qSurvey);
  for (const Group group : {gExpSurvey, gLogGammaSurvey, gLogBetaSurvey, gLogA50Survey})
    WriteGroup(text, fit, group);
  WriteGroup(text, fit, gLogSelSurvey, "log_selpar_SURVEY", surveyAges);
  WriteGroup(text, fit, gLogSelAnnual, "log_sel_annual_FISH", years);
  if (data.estimateInitialF == 1) WriteGroup(text, fit, gLogFInit);
  return text;
}

}  // namespace model
