#include "data_file_read.h"

#include "item_values.h"

#include <algorithm>
#include <variant>

namespace model {

namespace {

// ---- The data file's items ----

// The values of an item, or of an item's part that belongs to one survey.
enum class Shape {
  One,
  Periods,
  Smoothers,
  Years,
  Ages,
  CpueYears,
  FisheryYears,
  SurveyYears,
  FisheryYearsByAge,
  SurveyYearsByAge,
  YearsByAge
};

enum class Part { Once, EachSurvey };

enum class Allowed {
  Any,
  Switch,
  NotBelowZero,
  AboveZero,
  Fraction,
  ZeroOrOne,
  ZeroToThree,
  Whole,
  WholeNotBelowZero,
  FirstYear,
  LastYear,
  YearOfCase,
  AgeCount,
  Age,
  SurveyCount,
  YearCount,
  ShrinkageYears,
  InitialCatch
};

using Target = std::variant<int*, double*, std::vector<int>*, std::vector<double>*, Grid<double>*>;

using D = CaseData;  // short names for the rows below
using T = Target;
using enum Part;
using enum Shape;
using enum Allowed;

struct DataItem {
  const char* name;
  Part part;
  Shape shape;
  Allowed allowed;
  Target (*target)(CaseData& data, int survey);
};

Survey& At(CaseData& data, int s) { return data.surveys[static_cast<std::size_t>(s)]; }

// clang-format off

// A switch is on when it is 1; any other number is off, as older versions of the front end wrote it.
const DataItem kDimensions[] = {
    {"styr",                                  Once, One, FirstYear,   [](D& d, int) -> T { return &d.styr; }},
    {"endyr",                                 Once, One, LastYear,    [](D& d, int) -> T { return &d.endyr; }},
    {"recyr",                                 Once, One, YearOfCase,  [](D& d, int) -> T { return &d.recyr; }},
    {"depyr",                                 Once, One, YearOfCase,  [](D& d, int) -> T { return &d.depyr; }},
    {"number of age classes",                 Once, One, AgeCount,    [](D& d, int) -> T { return &d.nAges; }},
    {"number of surveys",                     Once, One, SurveyCount, [](D& d, int) -> T { return &d.nSurveys; }},
    {"number of fishery selectivity periods", Once, One, YearCount,   [](D& d, int) -> T { return &d.nPeriods; }},
};

const DataItem kSelectivityPeriods[] = {
    {"start of selectivity period", Once, Periods, YearOfCase, [](D& d, int) -> T { return &d.periodStart; }},
};

const DataItem kFishery[] = {
    {"nselage_FISH",                        Once,       Periods,           Age,          [](D& d, int) -> T { return &d.lastSelectivityAge; }},
    {"use_parametric_sel_FISH",             Once,       One,               ZeroOrOne,    [](D& d, int) -> T { return &d.parametricFishery; }},
    {"use_sel_smooth_FISH",                 Once,       Smoothers,         Switch,       [](D& d, int) -> T { return &d.smoother; }},
    {"catch biomass",                       Once,       Years,             NotBelowZero, [](D& d, int) -> T { return &d.catchBiomass; }},
    {"number of years of CPUE data",        Once,       One,               YearCount,    [](D& d, int) -> T { return &d.cpue.nYears; }},
    {"ages in CPUE",                        Once,       Ages,              Switch,       [](D& d, int) -> T { return &d.cpue.includesAge; }},
    {"fit CPUE",                            Once,       CpueYears,         Switch,       [](D& d, int) -> T { return &d.cpue.fit; }},
    {"year of CPUE",                        Once,       CpueYears,         YearOfCase,   [](D& d, int) -> T { return &d.cpue.year; }},
    {"CPUE",                                Once,       CpueYears,         Any,          [](D& d, int) -> T { return &d.cpue.value; }},
    {"fraction of Z prior to CPUE",         Once,       One,               Fraction,     [](D& d, int) -> T { return &d.cpue.fractionOfZ; }},
    {"number of years of fishery age data", Once,       One,               YearCount,    [](D& d, int) -> T { return &d.fishery.nYears; }},
    {"fit fishery age composition",         Once,       FisheryYears,      Switch,       [](D& d, int) -> T { return &d.fishery.fit; }},
    {"year of fishery age data",            Once,       FisheryYears,      YearOfCase,   [](D& d, int) -> T { return &d.fishery.year; }},
    {"nsamples_fish",                       Once,       FisheryYears,      NotBelowZero, [](D& d, int) -> T { return &d.fishery.sampleSize; }},
    {"fishery age composition",             Once,       FisheryYearsByAge, Any,          [](D& d, int) -> T { return &d.fishery.proportion; }},
    {"nselages_SURVEY",                     EachSurvey, One,               Age,          [](D& d, int s) -> T { return &At(d, s).lastSelectivityAge; }},
    {"use_parametric_sel_SURVEY",           Once,       One,               ZeroOrOne,    [](D& d, int) -> T { return &d.parametricSurvey; }},
    {"number of years of SURVEY data",      EachSurvey, One,               YearCount,    [](D& d, int s) -> T { return &At(d, s).index.nYears; }},
};

const DataItem kSurveyAges[] = {
    {"ages in SURVEY", EachSurvey, Ages, Switch, [](D& d, int s) -> T { return &At(d, s).index.includesAge; }},
};

const DataItem kSurveysAndBiology[] = {
    {"fit SURVEY index",                EachSurvey, SurveyYears,      Switch,       [](D& d, int s) -> T { return &At(d, s).index.fit; }},
    {"fit SURVEY age composition",      EachSurvey, SurveyYears,      Switch,       [](D& d, int s) -> T { return &At(d, s).composition.fit; }},
    {"year of SURVEY data",             EachSurvey, SurveyYears,      YearOfCase,   [](D& d, int s) -> T { return &At(d, s).index.year; }},
    {"fraction of Z prior to SURVEY",   EachSurvey, One,              Fraction,     [](D& d, int s) -> T { return &At(d, s).index.fractionOfZ; }},
    {"SURVEY index",                    EachSurvey, SurveyYears,      Any,          [](D& d, int s) -> T { return &At(d, s).index.value; }},
    {"nsamples_SURVEY",                 EachSurvey, SurveyYears,      NotBelowZero, [](D& d, int s) -> T { return &At(d, s).composition.sampleSize; }},
    {"SURVEY age composition",          EachSurvey, SurveyYearsByAge, Any,          [](D& d, int s) -> T { return &At(d, s).composition.proportion; }},
    {"catch weight at age",             Once,       YearsByAge,       NotBelowZero, [](D& d, int) -> T { return &d.catchWeight; }},
    {"stock weight at age",             Once,       YearsByAge,       NotBelowZero, [](D& d, int) -> T { return &d.stockWeight; }},
    {"spawning weight at age",          Once,       YearsByAge,       NotBelowZero, [](D& d, int) -> T { return &d.spawningWeight; }},
    {"fraction of Z prior to spawning", Once,       One,              Fraction,     [](D& d, int) -> T { return &d.fractionBeforeSpawning; }},
    {"maturity at age",                 Once,       YearsByAge,       NotBelowZero, [](D& d, int) -> T { return &d.maturity; }},
    {"mult_M",                          Once,       Ages,             AboveZero,    [](D& d, int) -> T { return &d.multM; }},
};

const DataItem kCvOfM = {"CV of natural mortality", Once, One, Any, [](D& d, int) -> T { return &d.cvM; }};

const DataItem kWeightsAndFlags[] = {
    {"CV of recruitment deviations",           Once,       One, Any,               [](D& d, int) -> T { return &d.cvRecruitment; }},
    {"CV of catch biomass deviations",         Once,       One, Any,               [](D& d, int) -> T { return &d.cvCatch; }},
    {"CV of fishing mortality deviations",     Once,       One, Any,               [](D& d, int) -> T { return &d.cvFishing; }},
    {"emphasis: recruitment",                  Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.emphasisRecruitment; }},
    {"emphasis: fishery CPUE",                 Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.cpue.emphasis; }},
    {"emphasis: fishery age composition",      Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.fishery.emphasis; }},
    {"emphasis: SURVEY age composition",       EachSurvey, One, NotBelowZero,      [](D& d, int s) -> T { return &At(d, s).composition.emphasis; }},
    {"emphasis: SURVEY biomass index",         EachSurvey, One, NotBelowZero,      [](D& d, int s) -> T { return &At(d, s).index.emphasis; }},
    {"emphasis: catch biomass",                Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.emphasisCatch; }},
    {"emphasis: fishery selectivity",          Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.emphasisSelectivity; }},
    {"emphasis: F penalty",                    Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.emphasisFishing; }},
    {"shrinkage years",                        Once,       One, ShrinkageYears,    [](D& d, int) -> T { return &d.shrinkageYears; }},
    {"shrinkage coefficient",                  Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.shrinkageCoefficient; }},
    {"nboot",                                  Once,       One, WholeNotBelowZero, [](D& d, int) -> T { return &d.nBoot; }},
    {"seed",                                   Once,       One, WholeNotBelowZero, [](D& d, int) -> T { return &d.seed; }},
    {"epsilon",                                Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.epsilon; }},
    {"estimate_M",                             Once,       One, ZeroToThree,       [](D& d, int) -> T { return &d.priorOfM; }},
    {"estimate_mean_log_rec",                  Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.estimateMeanLogRec; }},
    {"estimate_rec_dev",                       Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.estimateRecDev; }},
    {"estimate_log_avg_fmort",                 Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.estimateLogAvgFmort; }},
    {"estimate_fmort_dev",                     Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.estimateFmortDev; }},
    {"estimate_annual_sel_FISH",               Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.annualFisherySelectivity; }},
    {"fit_fishery_cpue",                       Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.cpue.isFitted; }},
    {"fit_cpue_index_number_per_tow",          Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.cpue.inNumbers; }},
    {"estimate_cpue_q",                        Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.estimateCpueQ; }},
    {"estimate_cpue_exp",                      Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.estimateCpueExp; }},
    {"fit_survey_index",                       EachSurvey, One, Switch,            [](D& d, int s) -> T { return &At(d, s).index.isFitted; }},
    {"fit_survey_index_number_per_tow",        EachSurvey, One, Switch,            [](D& d, int s) -> T { return &At(d, s).index.inNumbers; }},
    {"estimate_survey_q",                      Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.estimateSurveyQ; }},
    {"estimate_survey_exp",                    Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.estimateSurveyExp; }},
    {"use_flattopped_fishery_sel",             Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.flatToppedFishery; }},
    {"use_flattopped_survey_sel",              Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.flatToppedSurvey; }},
    {"estimate_effective_sample_size_fish",    Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.fishery.reweight; }},
    {"estimate_effective_sample_size_SURVEY",  EachSurvey, One, Switch,            [](D& d, int s) -> T { return &At(d, s).composition.reweight; }},
    {"estimate_initial_equilibrium_F",         Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.estimateInitialF; }},
    {"initial equilibrium catch biomass",      Once,       One, InitialCatch,      [](D& d, int) -> T { return &d.initialCatch; }},
    {"estimate_status_determination_criteria", Once,       One, ZeroOrOne,         [](D& d, int) -> T { return &d.reportCriteria; }},
    {"target F",                               Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.targetF; }},
    {"limit F",                                Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.limitF; }},
    {"target spawning biomass",                Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.targetSpawning; }},
    {"limit spawning biomass",                 Once,       One, NotBelowZero,      [](D& d, int) -> T { return &d.limitSpawning; }},
};

// clang-format on

// In the order of PhaseItem.
const char* const kPhaseNames[kPhaseItems] = {
    "phase_M",
    "phase_mean_log_rec",
    "phase_rec_dev",
    "phase_avg_fmort",
    "phase_fmort_dev",
    "phase_cpue_q",
    "phase_cpue_exp",
    "phase_gamma_FISH",
    "phase_beta_FISH",
    "phase_a50_FISH",
    "phase_sel_period_FISH",
    "phase_sel_annual_FISH",
    "phase_effective_sample_size_FISH",
    "phase_survey_q",
    "phase_survey_exp",
    "phase_gamma_SURVEY",
    "phase_beta_SURVEY",
    "phase_a50_SURVEY",
    "phase_sel_period_SURVEY",
    "phase_effective_sample_size_SURVEY",
};

// ---- Walking the items ----

Range RangeOf(Allowed allowed, const CaseData& data) {
  constexpr int largest = std::numeric_limits<int>::max();
  constexpr int lastYear = 3000;
  switch (allowed) {
    case Allowed::Any:
    case Allowed::Switch:
      return Range::Any();
    case Allowed::NotBelowZero:
      return Range::NotBelowZero();
    case Allowed::AboveZero:
      return Range::AboveZero();
    case Allowed::Fraction:
      return Range::Fraction();
    case Allowed::ZeroOrOne:
      return Range::Whole(0, 1);
    case Allowed::ZeroToThree:
      return Range::Whole(0, 3);
    case Allowed::Whole:
      return Range::Whole(-largest, largest);
    case Allowed::WholeNotBelowZero:
      return Range::Whole(0, largest);
    case Allowed::FirstYear:
      return Range::Whole(1000, lastYear);
    case Allowed::LastYear:
      return Range::Whole(data.styr + 1, lastYear);
    case Allowed::YearOfCase:
      return Range::Whole(data.styr, data.endyr);
    case Allowed::AgeCount:
      return Range::Whole(2, 100);
    case Allowed::Age:
      return Range::Whole(1, data.nAges);
    case Allowed::SurveyCount:
      return Range::Whole(1, 100);
    case Allowed::YearCount:
      return Range::Whole(1, data.endyr - data.styr + 1);
    case Allowed::ShrinkageYears:
      return Range::Whole(0, 1000);
    case Allowed::InitialCatch:
      return data.estimateInitialF == 1 ? Range::AboveZero() : Range::NotBelowZero();
  }
  return Range::Any();
}

struct Size {
  int rows;
  int columns;
};

Size SizeOf(Shape shape, const CaseData& data, int survey) {
  switch (shape) {
    case Shape::One:
      return {1, 1};
    case Shape::Periods:
      return {data.nPeriods, 1};
    case Shape::Smoothers:
      return {3, 1};
    case Shape::Years:
      return {data.nYears, 1};
    case Shape::Ages:
      return {data.nAges, 1};
    case Shape::CpueYears:
      return {data.cpue.nYears, 1};
    case Shape::FisheryYears:
      return {data.fishery.nYears, 1};
    case Shape::SurveyYears:
      return {data.surveys[survey].index.nYears, 1};
    case Shape::FisheryYearsByAge:
      return {data.fishery.nYears, data.nAges};
    case Shape::SurveyYearsByAge:
      return {data.surveys[survey].index.nYears, data.nAges};
    case Shape::YearsByAge:
      return {data.nYears, data.nAges};
  }
  return {0, 0};
}

// The calendar year of a row, or its number from 1 as long as the list of years has not been read.
std::string YearText(const std::vector<int>& years, const Size& size, int row) {
  return std::to_string(static_cast<int>(years.size()) == size.rows ? years[row] : row + 1);
}

std::string IndexText(Shape shape, const CaseData& data, int survey, const Size& size, int position) {
  const int row = position / size.columns;
  const std::string age = ", age " + std::to_string(position % size.columns + 1);
  switch (shape) {
    case Shape::One:
      return "";
    case Shape::Periods:
    case Shape::Smoothers:
      return std::to_string(row + 1);
    case Shape::Ages:
      return "age " + std::to_string(row + 1);
    case Shape::Years:
      return std::to_string(data.styr + row);
    case Shape::CpueYears:
      return YearText(data.cpue.year, size, row);
    case Shape::FisheryYears:
      return YearText(data.fishery.year, size, row);
    case Shape::SurveyYears:
      return YearText(data.surveys[survey].index.year, size, row);
    case Shape::FisheryYearsByAge:
      return YearText(data.fishery.year, size, row) + age;
    case Shape::SurveyYearsByAge:
      return YearText(data.surveys[survey].index.year, size, row) + age;
    case Shape::YearsByAge:
      return std::to_string(data.styr + row) + age;
  }
  return "";
}

// "catch biomass (1990)", "maturity at age (1990, age 3)", "SURVEY index (survey 2, 1990)"
std::string NameOf(const DataItem& item, const CaseData& data, int survey, const Size& size, int position) {
  std::string index = IndexText(item.shape, data, survey, size, position);
  if (item.part == Part::EachSurvey)
    index = "survey " + std::to_string(survey + 1) + (index.empty() ? "" : ", ") + index;
  return item.name + (index.empty() ? "" : " (" + index + ")");
}

void Store(const Target& target, const Size& size, const std::vector<double>& values, bool isSwitch) {
  const auto whole = [isSwitch](double v) {
    return isSwitch ? static_cast<int>(v == 1) : static_cast<int>(v);
  };
  if (const auto one = std::get_if<int*>(&target)) {
    **one = whole(values.front());
  } else if (const auto real = std::get_if<double*>(&target)) {
    **real = values.front();
  } else if (const auto list = std::get_if<std::vector<int>*>(&target)) {
    (*list)->clear();
    std::transform(values.begin(), values.end(), std::back_inserter(**list), whole);
  } else if (const auto reals = std::get_if<std::vector<double>*>(&target)) {
    **reals = values;
  } else if (const auto table = std::get_if<Grid<double>*>(&target)) {
    (*table)->rows = size.rows;
    (*table)->columns = size.columns;
    (*table)->cells = values;
  }
}

// The list grows with the values that the file really holds, so that a wild count costs no memory.
void ReadItem(ValueStream& stream, CaseData& data, const DataItem& item) {
  const Range range = RangeOf(item.allowed, data);
  const int parts = item.part == Part::EachSurvey ? data.nSurveys : 1;
  for (int s = 0; s < parts; ++s) {
    const Size size = SizeOf(item.shape, data, s);
    const int count = size.rows * size.columns;
    const bool oneEach = parts > 1 && item.shape == Shape::One;
    std::vector<double> values;
    for (int i = 0; i < count; ++i)
      values.push_back(ReadItemValue(stream, range, oneEach ? s : i, oneEach ? parts : count,
                                     [&] { return NameOf(item, data, s, size, i); }));
    Store(item.target(data, s), size, values, item.allowed == Allowed::Switch);
  }
}

template <class Items>
void ReadItems(ValueStream& stream, CaseData& data, const Items& items) {
  for (const DataItem& item : items) ReadItem(stream, data, item);
}

// ---- What single items need besides ----

void CheckPeriods(const ValueStream& stream, const CaseData& data) {
  const std::string item = "start of selectivity period";
  if (data.periodStart.front() != data.styr)
    throw FaultAt(stream, stream.line, item, "first period must start in styr");
  if (!std::is_sorted(data.periodStart.begin(), data.periodStart.end()))
    throw FaultAt(stream, stream.line, item, "periods are not in order");
}

void CheckSurveyAges(const ValueStream& stream, const CaseData& data) {
  for (int s = 0; s < data.nSurveys; ++s) {
    const std::vector<int>& includes = data.surveys[s].index.includesAge;
    if (std::find(includes.begin(), includes.end(), 1) == includes.end())
      throw FaultAt(stream, stream.line, "ages in SURVEY",
                    "survey " + std::to_string(s + 1) + " includes no age");
  }
}

void ReadPhases(ValueStream& stream, CaseData& data) {
  const Range range = RangeOf(Allowed::Whole, data);
  for (int i = 0; i < kPhaseItems; ++i)
    data.phase[i] =
        static_cast<int>(ReadItemValue(stream, range, 0, 1, [i] { return std::string(kPhaseNames[i]); }));
}

void Normalise(CompositionSeries& series) {
  for (int i = 0; i < series.nYears; ++i) {
    double sum = 0;
    for (int a = 0; a < series.proportion.columns; ++a) {
      double& p = series.proportion(i, a);
      if (p < 0 || series.includesAge[a] != 1) p = 0;
      sum += p;
    }
    for (int a = 0; a < series.proportion.columns; ++a)
      if (sum > 0) series.proportion(i, a) /= sum;
  }
}

void CompleteSeries(CaseData& data) {
  data.fishery.includesAge.assign(static_cast<std::size_t>(data.nAges), 1);
  Normalise(data.fishery);
  for (Survey& survey : data.surveys) {
    survey.composition.nYears = survey.index.nYears;
    survey.composition.year = survey.index.year;
    survey.composition.includesAge = survey.index.includesAge;
    Normalise(survey.composition);
  }
}

}  // namespace

CaseData ReadCaseData(const std::string& file, const Messages& messages) {
  ValueStream stream = OpenValueStream(file);
  CaseData data;
  ReadItems(stream, data, kDimensions);
  data.nYears = data.endyr - data.styr + 1;
  data.surveys.resize(static_cast<std::size_t>(data.nSurveys));
  ReadItems(stream, data, kSelectivityPeriods);
  CheckPeriods(stream, data);
  ReadItems(stream, data, kFishery);
  ReadItems(stream, data, kSurveyAges);
  CheckSurveyAges(stream, data);
  ReadItems(stream, data, kSurveysAndBiology);

  // Whether the CV of M is needed shows further down; its token is kept to name its line then.
  ValueStream atCv = stream;
  ReadItem(stream, data, kCvOfM);
  ReadItems(stream, data, kWeightsAndFlags);
  ReadPhases(stream, data);
  if (data.priorOfM > 0 && data.phase[kPhaseM] >= 0)
    CheckRange(atCv, *NextToken(atCv), data.cvM, Range::AboveZero(), kCvOfM.name);

  if (data.epsilon == 0) data.epsilon = 1e-12;
  CompleteSeries(data);
  if (const std::size_t left = CountValuesLeft(stream); left > 0)
    messages.Warning(file + ": " + std::to_string(left) + " values after the last item are ignored");
  return data;
}

}  // namespace model
