#include "parameter_file_read.h"

#include "item_values.h"

#include <initializer_list>
#include <numeric>

namespace model {

namespace {

struct StartItem {
  const char* name;
  std::vector<double>* list;
  int count;
};

void Centre(std::vector<double>& values, int first, int count) {
  const auto begin = values.begin() + first;
  const double mean = std::accumulate(begin, begin + count, 0.0) / count;
  for (auto v = begin; v != begin + count; ++v) *v -= mean;
}

void CentreLists(std::vector<double>& values, const std::vector<int>& lengths) {
  int first = 0;
  for (const int length : lengths) {
    Centre(values, first, length);
    first += length;
  }
}

double ReadOne(ValueStream& stream, const char* name, const Range& range) {
  return ReadItemValue(stream, range, 0, 1, [name] { return std::string(name); });
}

void ReadLists(ValueStream& stream, std::initializer_list<StartItem> items) {
  for (const StartItem& item : items) {
    for (int i = 0; i < item.count; ++i)
      item.list->push_back(ReadItemValue(stream, Range::Any(), i, item.count, [&item, i] {
        return std::string(item.name) + " (" + std::to_string(i + 1) + ")";
      }));
  }
}

int AnnualAges(const ValueStream& stream, const CaseData& data) {
  const std::size_t left = CountValuesLeft(stream);
  const auto years = static_cast<std::size_t>(data.nYears);
  if (left == 0 || left % years != 0 || left / years > static_cast<std::size_t>(data.nAges))
    throw Failure(kInputFault, stream.file + ": log_sel_annual_FISH: " + std::to_string(left) +
                                   " values left, wanted " + std::to_string(data.nYears) +
                                   " times a number of ages from 1 to " + std::to_string(data.nAges));
  return static_cast<int>(left / years);
}

}  // namespace

StartValues ReadStartValues(const std::string& file, const CaseData& data) {
  ValueStream stream = OpenValueStream(file);
  StartValues start;
  std::vector<int> surveyAges;
  for (const Survey& survey : data.surveys) surveyAges.push_back(survey.lastSelectivityAge);
  const auto sum = [](const std::vector<int>& counts) {
    return std::accumulate(counts.begin(), counts.end(), 0);
  };
  const int P = data.nPeriods;
  const int S = data.nSurveys;

  start.M = ReadOne(stream, "M", Range::AboveZero());
  start.meanLogRec = ReadOne(stream, "mean_log_rec", Range::Any());
  ReadLists(stream, {{"rec_dev", &start.recDev, data.DeviationCount()}});
  start.logAvgFmort = ReadOne(stream, "log_avg_fmort", Range::Any());
  ReadLists(stream, {{"fmort_dev", &start.fmortDev, data.nYears}});
  start.qCpue = ReadOne(stream, "qCPUE", Range::Any());
  start.expCpue = ReadOne(stream, "exp_CPUE", Range::Any());
  ReadLists(stream, {{"log_gamma_FISH", &start.logGammaFish, P},
                     {"log_beta_FISH", &start.logBetaFish, P},
                     {"log_a50_FISH", &start.logA50Fish, P},
                     {"log_sel_period_FISH", &start.logSelFish, sum(data.lastSelectivityAge)},
                     {"qSURVEY", &start.qSurvey, S},
                     {"exp_SURVEY", &start.expSurvey, S},
                     {"log_gamma_SURVEY", &start.logGammaSurvey, S},
                     {"log_beta_SURVEY", &start.logBetaSurvey, S},
                     {"log_a50_SURVEY", &start.logA50Survey, S},
                     {"log_sel_period_SURVEY", &start.logSelSurvey, sum(surveyAges)}});
  start.annualAges = AnnualAges(stream, data);
  ReadLists(stream, {{"log_sel_annual_FISH", &start.logSelAnnual, data.nYears * start.annualAges}});

  CentreLists(start.logSelFish, data.lastSelectivityAge);
  CentreLists(start.logSelSurvey, surveyAges);
  CentreLists(start.logSelAnnual, std::vector<int>(static_cast<std::size_t>(data.nYears), start.annualAges));
  return start;
}

}  // namespace model
