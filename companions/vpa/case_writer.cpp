#include "case_writer.h"

#include <cmath>
#include <filesystem>
#include <iterator>

#include "case_text.h"
#include "numbers.h"
#include "settings.h"

namespace vpa {

namespace {

constexpr const char* kVersionLine = "Statistical Catch-at-Age Model: Tarnvik Version 1.4";

// ---- pieces of lines ----

std::vector<std::string> Texts(const std::vector<double>& values, std::string (*written)(double)) {
  std::vector<std::string> texts;
  for (const double value : values) texts.push_back(written(value));
  return texts;
}

std::vector<std::string> YearTexts(const Span& years) {
  std::vector<std::string> texts;
  for (int year = years.first; year <= years.last; ++year) texts.push_back(std::to_string(year));
  return texts;
}

std::string AgeHeads(const Stock& stock) {
  std::string heads;
  for (std::size_t age = 1; age <= stock.Ages(); ++age) heads += " " + std::to_string(age);
  return heads + "+";
}

std::string Titles(const std::vector<Survey>& surveys) {
  std::string titles;
  for (const Survey& survey : surveys) titles += (titles.empty() ? "" : ",") + survey.title;
  return titles;
}

std::string OldestAge(const Survey& survey) {
  std::size_t age = survey.has_age.size();
  while (!survey.has_age[age - 1]) --age;
  return std::to_string(age);
}

// ---- blocks of the data file ----

void WriteSettings(CaseText& file, const Setting* begin, const Setting* end) {
  for (; begin != end; ++begin) {
    const std::string_view comment = begin->comment;
    for (std::size_t at = 0; at < comment.size();) {
      const std::size_t line_end = std::min(comment.find('\n', at), comment.size());
      file.Comment(comment.substr(at, line_end - at));
      at = line_end + 1;
    }
    file.Line(begin->value);
  }
}

void WriteTable(CaseText& file, const std::string& comment, const Table& table,
                std::string (*written)(double)) {
  file.Comment(comment);
  for (const auto& row : table) file.Values(Texts(row, written), "  ");
}

void WriteDimensions(CaseText& file, const Stock& stock, const std::vector<Survey>& surveys) {
  const std::string first = std::to_string(stock.years.first);
  // Every initial age gets a deviation of its own only when recruitment begins with the first year.
  file.Item("styr endyr recyr depyr",
            first + " " + std::to_string(stock.years.last) + " " + first + " " + first);
  file.Item("Number of age classes", std::to_string(stock.Ages()));
  file.Item("Number of surveys", std::to_string(surveys.size()));
  file.Item("Number of fishery selectivity periods", "1");
  file.Item("Starting years of fishery selectivity periods", first + " ");
  file.Item("Number of ages (1..nselage_FISH) to estimate fishery selectivity by period",
            std::to_string(stock.Ages()) + " ");
  file.Comment("Choose fishery selectivity model (set use_parametric_sel_FISH)");
  file.Comment("use_parametric_sel_FISH=1 implies parametric fishery selectivity");
  file.Item("use_parametric_sel_FISH=0 implies nonparametric fishery selectivity", "1");
  file.Comment("Apply 1st, 2nd, or 3rd difference smoothers to fishery selectivity");
  file.Comment("Set use_sel_smooth_FISH(1) = 1 to apply 1st difference");
  file.Comment("Set use_sel_smooth_FISH(2) = 1 to apply 2nd difference");
  file.Item("Set use_sel_smooth_FISH(3) = 1 to apply 3rd difference", "0 0 0 ");
}

// There is no fishery CPUE in the VPA data: the block holds neutral values that are not fitted.
void WriteCpue(CaseText& file, const Stock& stock) {
  const std::string years = Told(stock.years);
  file.Item("Number years of fishery CPUE data " + years + " (default=nobs_FISH)",
            std::to_string(stock.Years()));
  file.Comment("Ages in CPUE (1=include age group, 0=exclude age group)");
  file.Repeat("1", stock.Ages(), " ");
  file.Comment("Years to fit fishery CPUE data (1=fit CPUE, 0=do not fit CPUE)");
  file.Comment("Fit FISHERY CPUE data (" + years + ")");
  file.Repeat("0", stock.Years(), " ");
  file.Comment("Years of fishery CPUE data");
  file.Values(YearTexts(stock.years), "  ");
  file.Comment("Observed fishery CPUE data (nobs_CPUE data points)");
  file.Repeat("1", stock.Years(), "  ");
  file.Item("Fraction of Z Prior to CPUE index (default=0.5)", "0.5");
}

void WriteFisheryAges(CaseText& file, const Stock& stock, const std::string& in_brackets) {
  Table shares = stock.catch_numbers;
  std::vector<bool> fitted;
  std::vector<std::string> samples;
  for (auto& row : shares) {
    const double sum = Sum(row);
    fitted.push_back(sum > 0);
    samples.push_back(sum > 0 ? kFisherySampleSize : "0");
    for (double& value : row) value = sum > 0 ? value / sum : 0;
  }
  const std::string years = Told(stock.years);
  file.Item("Number years of fishery age data " + years + " (nobs_FISH)", std::to_string(stock.Years()));
  file.Comment("Years to fit fishery age compositions (1=fit agecomp, 0=do not fit agecomp)");
  file.Comment("Fit FISHERY age composition data (" + years + ")");
  file.Flags(fitted);
  file.Comment("Years of fishery age composition data");
  file.Values(YearTexts(stock.years), "  ");
  file.Comment("Number of age samples in fishery (nsamples_fish)");
  file.Values(samples, "  ");
  WriteTable(file, "Fishery age composition data " + in_brackets + AgeHeads(stock), shares, Share);
}

void WriteSurveySetup(CaseText& file, const std::vector<Survey>& surveys) {
  std::vector<std::string> oldest;
  std::vector<std::string> years;
  for (const Survey& survey : surveys) {
    oldest.push_back(OldestAge(survey));
    years.push_back(std::to_string(survey.years.Count()));
  }
  file.Comment("Number of ages (1..nselages_SURVEY) to estimate survey selectivity");
  file.Values(oldest, " ");
  file.Comment("Choose survey selectivity model (set use_parametric_sel_SURVEY)");
  file.Comment("use_parametric_sel_SURVEY=1 implies parametric survey selectivity");
  file.Item("use_parametric_sel_SURVEY=0 implies nonparametric survey selectivity", "0");
  file.Comment("Number of years of SURVEY data (" + Titles(surveys) + ")");
  file.Values(years, " ");
  file.Comment("Ages in SURVEY (1=include age group, 0=exclude age group)");
  for (const Survey& survey : surveys) {
    file.Comment("Ages in " + survey.title + " SURVEY index (1..nages)");
    file.Flags(survey.has_age);
  }
}

// Each block runs over all surveys before the next begins.
void WriteSurveyData(CaseText& file, const std::vector<Survey>& surveys) {
  const auto years = [](const Survey& survey) { return Told(survey.years); };
  file.Comment("Years to fit SURVEY index values (1=fit annual index, 0=do not fit index)");
  for (const Survey& survey : surveys) {
    file.Comment("Fit " + survey.title + " SURVEY index values (" + years(survey) + ")");
    file.Flags(survey.fitted);
  }
  file.Comment("Years to fit SURVEY age compositions (1=fit agecomp, 0=do not fit agecomp)");
  for (const Survey& survey : surveys) {
    file.Comment("Fit " + survey.title + " SURVEY age composition data (" + years(survey) + ")");
    file.Flags(survey.fitted);
  }
  for (const Survey& survey : surveys) {
    file.Comment("Years of " + survey.title + " SURVEY index data");
    file.Values(YearTexts(survey.years), "  ");
  }
  std::vector<double> z_before;
  for (const Survey& survey : surveys) z_before.push_back(survey.z_before);
  file.Comment("Fraction of Z Prior to SURVEY (" + Titles(surveys) + ")");
  file.Values(Texts(z_before, Rounded), "  ");
  for (const Survey& survey : surveys) {
    file.Comment("Untransformed " + survey.title + " SURVEY biomass index (kg/tow*1000), " + years(survey));
    file.Values(Texts(survey.index, Rounded), "  ");
  }
  for (const Survey& survey : surveys) {
    file.Comment("Number of age samples in " + survey.title + " SURVEY (nsamples_" + survey.title + ")");
    std::vector<std::string> samples;
    for (const bool fitted : survey.fitted) samples.push_back(fitted ? kSurveySampleSize : "0");
    file.Values(samples, "  ");
  }
  for (const Survey& survey : surveys)
    WriteTable(file, survey.title + " SURVEY age composition data, " + years(survey), survey.shares, Share);
}

void WriteBiology(CaseText& file, const Stock& stock, const std::string& in_brackets) {
  const std::string ages = AgeHeads(stock);
  WriteTable(file, "Catch Weight at age " + in_brackets + ages, stock.catch_weights, Exact);
  WriteTable(file, "Stock Weight at age " + in_brackets + ages, stock.stock_weights, Exact);
  WriteTable(file, "Spawning Weight at age " + in_brackets + ages, stock.stock_weights, Exact);
  file.Item("Fraction of Z Prior to Spawning Season (fraction of year)", Rounded(stock.z_before_spawning));
  WriteTable(file, "Maturity at age " + ages, stock.maturity, Exact);
  std::vector<double> multipliers;
  for (const double m : stock.mean_m) multipliers.push_back(m / stock.mean_m.back());
  file.Comment("Age-specific multiplier for natural mortality (mult_M)");
  file.Comment("with convention that mult_M(nages) = 1 for the plus group");
  file.Values(Texts(multipliers, Rounded), " ");
}

void WriteModelSettings(CaseText& file, const Stock& stock, const std::vector<Survey>& surveys) {
  WriteSettings(file, std::begin(kVariances), std::end(kVariances));
  file.Comment("Likelihood emphasis: SURVEY age composition (" + Titles(surveys) + ")");
  file.Repeat(kSurveyAgeEmphasis, surveys.size(), " ");
  file.Comment("Likelihood emphasis: SURVEY biomass index (" + Titles(surveys) + ")");
  file.Repeat(kSurveyIndexEmphasis, surveys.size(), " ");
  WriteSettings(file, std::begin(kEstimation), std::end(kEstimation));
  file.Comment("Logical flag: fit_survey_index (flag=0 implies no fit to survey index)");
  file.Repeat("1", surveys.size(), " ");
  file.Comment("Logical flag: fit_survey_index_number_per_tow (1=true by survey, otherwise false)");
  file.Repeat("1", surveys.size(), " ");
  WriteSettings(file, std::begin(kSurveyEstimation), std::end(kSurveyEstimation));
  file.Comment("Logical flag: estimate_effective_sample_size_SURVEY");
  file.Comment("(1=true by survey, otherwise false)");
  file.Repeat("0", surveys.size(), " ");
  // The stock was fished before the first year about as it was in it, unless it was not fished in it at all.
  const double initial_catch = stock.catch_biomass.front();
  file.Comment("Logical flag: estimate_initial_equilibrium_F");
  file.Item("(1=true, otherwise false)", initial_catch > 0 ? "1" : "0");
  file.Item("Initial equilibrium catch biomass", initial_catch > 0 ? Rounded(initial_catch) : "0.0");
  WriteSettings(file, std::begin(kCriteriaAndPhases), std::end(kCriteriaAndPhases));
}

// ---- the parameter file ----

// Four times the catch of recruits, as if a quarter of them were caught. Where the youngest age is never
// caught, the youngest one that is stands for it.
double StartOfMeanLogRec(const Stock& stock) {
  double mean = 0;
  for (std::size_t a = 0; a < stock.Ages() && mean == 0; ++a)
    for (const auto& row : stock.catch_numbers) mean += row[a] / static_cast<double>(stock.Years());
  return std::log(mean * 4);
}

}  // namespace

std::string Description(const Stock& stock) {
  if (stock.ages.first == 1) return stock.title;
  return stock.title + " - age 1 of the case is age " + std::to_string(stock.ages.first) + " of the stock";
}

std::string ControlFileText(const Stock& stock, const CasePaths& paths) {
  CaseText file;
  file.Item("Model Description", Description(stock));
  file.Item("Parameter Input File", std::filesystem::path(paths.pin).filename().string());
  file.Item("Input Data File", std::filesystem::path(paths.dat).filename().string());
  return file.Text();
}

std::string DataFileText(const Stock& stock, const std::vector<Survey>& surveys, const CasePaths& paths) {
  const std::string description = Description(stock);
  const std::string in_brackets = "(" + description + ") ";
  CaseText file;
  file.Comment(kVersionLine);
  file.Comment("Model Description:  " + description);
  file.Comment("file = " + paths.dat);
  WriteDimensions(file, stock, surveys);
  file.Comment("Catch biomass:" + std::to_string(stock.years.first) + " to " +
               std::to_string(stock.years.last) + ", n=" + std::to_string(stock.Years()));
  file.Values(Texts(stock.catch_biomass, Rounded), "  ");
  WriteCpue(file, stock);
  WriteFisheryAges(file, stock, in_brackets);
  WriteSurveySetup(file, surveys);
  WriteSurveyData(file, surveys);
  WriteBiology(file, stock, in_brackets);
  WriteModelSettings(file, stock, surveys);
  return file.Text();
}

std::string ParameterFileText(const Stock& stock, const std::vector<Survey>& surveys,
                              const CasePaths& paths) {
  CaseText file;
  const auto repeat = [&](const std::string& comment, std::string_view value, std::size_t count) {
    file.Comment(comment);
    file.Repeat(value, count, " ");
  };
  const std::size_t count = surveys.size();
  const std::string titles = " (" + Titles(surveys) + ")";
  file.Comment(kVersionLine);
  file.Comment("Model Description:  " + Description(stock));
  file.Comment("FILE " + paths.pin + " SETS INITIAL PARAMETER VALUES");
  file.Item("NATURAL MORTALITY (M)", Rounded(stock.mean_m.back()));
  file.Item("MEAN LOG RECRUITMENT (mean_log_rec) UNITS ARE THOUSANDS OF FISH",
            Rounded(StartOfMeanLogRec(stock)));
  // One deviation for every year, and before it one for each age there was in the first.
  repeat("RECRUITMENT DEVIATIONS (rec_dev) n=endyr-styr_rec+1", "0", stock.Years() + stock.Ages() - 1);
  file.Item("LOG of MEAN FISHING ANNUAL MORTALITY (log_avg_fmort)", kLogAvgFmort);
  repeat("FISHING MORTALITY DEVIATIONS (fmort_dev) n=endyr-styr+1", "0", stock.Years());
  file.Comment("FISHERY CPUE PARAMETERS");
  file.Item("qCPUE", "1");
  file.Item("exp_CPUE", "1");
  file.Comment("FISHERY SELECTIVITY PARAMETERS (1..nperiod)");
  repeat("log_gamma_FISH", kLogGamma, 1);
  repeat("log_beta_FISH", kLogBeta, 1);
  repeat("log_a50_FISH", kLogA50, 1);
  repeat("log_sel_period_FISH", kLogSelectivity, stock.Ages());
  file.Comment("SURVEY INDEX PARAMETERS");
  repeat("qSURVEY" + titles, "1", count);
  repeat("exp_SURVEY" + titles, "1", count);
  repeat("log_gamma_SURVEY" + titles, kLogGamma, count);
  repeat("log_beta_SURVEY" + titles, kLogBeta, count);
  repeat("log_a50_SURVEY" + titles, kLogA50, count);
  file.Comment("log_sel_period_SURVEY");
  for (const Survey& survey : surveys)
    file.Repeat(kLogSelectivity, static_cast<std::size_t>(std::stoi(OldestAge(survey))), " ");
  file.Comment("log_sel_annual_FISH");
  for (std::size_t y = 0; y < stock.Years(); ++y) file.Repeat(kLogSelectivity, stock.Ages(), " ");
  return file.Text();
}

}  // namespace vpa
