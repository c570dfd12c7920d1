#include "large_case.h"

#include <functional>

#include "platform/files.h"
#include "platform/paths.h"

namespace tarnvik {

namespace {

constexpr int Y = kLargeYears;
constexpr int A = kLargeAges;
constexpr int S = kLargeSurveys;
constexpr int P = kLargePeriods;
constexpr int kLastYear = kLargeFirstYear + Y - 1;

// Numbers of the length that data files hold, the same at every run.
std::string Number() {
  static unsigned state = 12345;
  state = state * 1103515245u + 12345u;
  std::string digits = std::to_string(100000 + (state >> 8) % 900000);
  return "0." + digits;
}

std::string Row(int count, const std::function<std::string(int)>& value, const char* behind = "  ") {
  std::string row;
  for (int i = 0; i < count; ++i) row += value(i) + behind;
  return row;
}

std::string Same(int count, const char* text) {
  return Row(
      count, [text](int) { return std::string(text); }, " ");
}

std::string Numbers(int count) {
  return Row(count, [](int) { return Number(); });
}

std::string Years(int first = kLargeFirstYear, int count = Y) {
  return Row(count, [first](int i) { return std::to_string(first + i); });
}

std::string Titles() {
  std::string titles;
  for (int s = 1; s <= S; ++s) titles += (s > 1 ? "," : "") + ("Trawl" + std::to_string(s));
  return titles;
}

struct Writer {
  OutputFile file;
  void Line(const std::string& text) { file.PrintLine(text); }
  void Item(const char* comment, const std::string& values) {
    Line(std::string("# ") + comment);
    Line(values);
  }
  void Table(const std::string& comment, int rows, int columns) {
    if (!comment.empty()) Line(comment);
    for (int r = 0; r < rows; ++r) Line(Numbers(columns));
  }
  void Each(const char* comment, int times, const std::function<std::string(int)>& values) {
    Line(std::string("# ") + comment);
    for (int i = 0; i < times; ++i) Line(values(i));
  }
};

void WriteData(const std::string& path) {
  Writer w;
  w.file.Open(path);
  w.Line("# Statistical Catch-at-Age Model: Tarnvik Version 1.4");
  w.Line("# Model Description:  Large");
  w.Line("# file = large.dat");
  const std::string first = std::to_string(kLargeFirstYear);
  w.Item("styr endyr recyr depyr", first + " " + std::to_string(kLastYear) + " " + first + " " + first);
  w.Item("Number of age classes", std::to_string(A));
  w.Item("Number of surveys", std::to_string(S));
  w.Item("Number of fishery selectivity periods", std::to_string(P));
  w.Item("Starting years", Row(
                               P, [](int i) { return std::to_string(kLargeFirstYear + 20 * i); }, " "));
  w.Item("nselage_FISH", Row(
                             P, [](int) { return std::to_string(A); }, " "));
  w.Item("use_parametric_sel_FISH", "1");
  w.Item("smoothers", "0 0 0 ");
  w.Item("Catch biomass", Numbers(Y));
  w.Item("Number years of fishery CPUE data", std::to_string(Y));
  w.Item("Ages in CPUE", Same(A, "1"));
  w.Item("Years to fit CPUE", Same(Y, "0"));
  w.Item("Years of CPUE", Years());
  w.Item("CPUE", Numbers(Y));
  w.Item("Fraction of Z Prior to CPUE", "0.5");
  w.Item("Number years of fishery age data", std::to_string(Y));
  w.Item("Years to fit fishery age compositions", Same(Y, "1"));
  w.Item("Years of fishery age composition data", Years());
  w.Item("Number of age samples", Same(Y, "100"));
  w.Table("# Fishery age composition data", Y, A);
  w.Item("nselages_SURVEY", Row(
                                S, [](int) { return std::to_string(A); }, " "));
  w.Item("use_parametric_sel_SURVEY", "1");
  w.Item(("Number of years of SURVEY data (" + Titles() + ")").c_str(),
         Row(
             S, [](int) { return std::to_string(Y); }, " "));
  w.Each("Ages in SURVEY", S, [](int) { return Same(A, "1"); });
  w.Each("Years to fit SURVEY index", S, [](int) { return Same(Y, "1"); });
  w.Each("Years to fit SURVEY ages", S, [](int) { return Same(Y, "1"); });
  w.Each("Years of SURVEY index data", S, [](int) { return Years(); });
  w.Item("Fraction of Z Prior to SURVEY", Same(S, "0.5"));
  w.Each("SURVEY biomass index", S, [](int) { return Numbers(Y); });
  w.Each("Number of age samples in SURVEY", S, [](int) { return Same(Y, "50"); });
  for (int s = 0; s < S; ++s) w.Table("# SURVEY age composition data", Y, A);
  for (const char* weight : {"# Catch Weight at age", "# Stock Weight at age", "# Spawning Weight at age"}) {
    w.Table(weight, Y, A);
  }
  w.Item("Fraction of Z Prior to Spawning", "0.25");
  w.Table("# Maturity at age", Y, A);
  w.Item("mult_M", Same(A, "1.0"));
  for (const char* value : {"0.2", "0.8", "0.1", "0.5", "1", "1", "1"}) w.Item("CV or emphasis", value);
  w.Item("emphasis SURVEY age composition", Same(S, "1"));
  w.Item("emphasis SURVEY index", Same(S, "10"));
  for (const char* value : {"1", "1", "1", "0", "1", "0", "123456", "1.0e-12"})
    w.Item("emphasis or setting", value);
  for (const char* value : {"0", "1", "1", "1", "1", "0", "0", "0", "1", "0"}) w.Item("flag", value);
  w.Item("fit_survey_index", Same(S, "1"));
  w.Item("fit_survey_index_number_per_tow", Same(S, "0"));
  for (const char* value : {"0", "0", "1", "1", "0"}) w.Item("flag", value);
  w.Item("estimate_effective_sample_size_SURVEY", Same(S, "0"));
  for (const char* value : {"0", "0.0", "0", "0.0", "0.0", "0.0", "0.0"}) w.Item("criteria", value);
  for (const char* phase : {"-1", "1",  "2",  "1",  "2",  "3",  "-1", "-1", "3",  "3",
                            "-1", "-1", "-1", "-1", "-1", "-1", "3",  "3",  "-1", "-1"}) {
    w.Item("phase", phase);
  }
  w.file.Close();
}

void WriteParameters(const std::string& path) {
  Writer w;
  w.file.Open(path);
  w.Line("# Statistical Catch-at-Age Model: Tarnvik Version 1.4");
  w.Line("# Model Description:  Large");
  w.Item("M", "0.2");
  w.Item("mean_log_rec", "13");
  w.Item("rec_dev", Same(Y + A - 1, "0.125"));
  w.Item("log_avg_fmort", "-1");
  w.Item("fmort_dev", Same(Y, "0.125"));
  w.Item("qCPUE", "1");
  w.Item("exp_CPUE", "1");
  w.Item("log_gamma_FISH", Same(P, "-2.0"));
  w.Item("log_beta_FISH", Same(P, "0.0"));
  w.Item("log_a50_FISH", Same(P, "1.0"));
  w.Each("log_sel_period_FISH", P, [](int) { return Same(A, "1"); });
  w.Item("qSURVEY", Same(S, "1"));
  w.Item("exp_SURVEY", Same(S, "1"));
  w.Item("log_gamma_SURVEY", Same(S, "-2.0"));
  w.Item("log_beta_SURVEY", Same(S, "0.0"));
  w.Item("log_a50_SURVEY", Same(S, "1.0"));
  w.Each("log_sel_period_SURVEY", S, [](int) { return Same(A, "1"); });
  w.Each("log_sel_annual_FISH", Y, [](int) { return Same(A, "1"); });
  w.file.Close();
}

// One block of the report: a key line and rows of numbers below it.
void Block(Writer& w, const std::string& key, int rows, int columns) {
  w.Line(key);
  for (int r = 0; r < rows; ++r) w.Line(" " + Numbers(columns));
}

void YearBlock(Writer& w, const std::string& key, int columns = Y) {
  w.Line(key);
  w.Line(" " + Years());
  w.Line(" " + Numbers(columns));
}

void WriteSurveyBlocks(Writer& w) {
  for (int s = 1; s <= S; ++s) {
    const std::string survey = std::to_string(s);
    w.Line("Age classes in survey Biomass index, survey " + survey + ": " + Same(A, "1"));
    YearBlock(w, "Observed Biomass index (year) for survey: " + survey);
    for (const char* key :
         {"Predicted Biomass index (year) for survey: ", "Biomass index residuals (year) for survey: ",
          "Log-scale Biomass index residuals (year) for survey: ",
          "Standardized log-scale Biomass index residuals (year) for survey: "}) {
      Block(w, key + survey, 1, Y);
    }
  }
}

void WriteSurveyAges(Writer& w) {
  for (int s = 1; s <= S; ++s) {
    const std::string survey = std::to_string(s);
    YearBlock(w, "Survey age composition input sample size for survey: " + survey);
    Block(w, "Survey age composition estimated effective sample size for survey: " + survey, 1, Y);
    for (const char* key : {"Observed proportion", "Predicted proportion", "Proportion residuals",
                            "Standardized proportion residuals"}) {
      Block(w, std::string(key) + " at age (year,age) for survey: " + survey, Y, A);
    }
  }
}

void WriteReport(const std::string& path) {
  Writer w;
  w.file.Open(path);
  const std::string first = std::to_string(kLargeFirstYear);
  const std::string last = std::to_string(kLastYear);
  w.Line("Tarnvik statistical catch-at-age model, Version 1.4, report");
  w.Line("Converged");
  Block(w, "Estimated numbers of fish at age (thousands) by year", Y, A);
  Block(w, "Estimated fishing mortality by year and age", Y, A);
  WriteSurveyBlocks(w);
  YearBlock(w, "Fishery age composition input sample size");
  Block(w, "Fishery age composition estimated effective sample size", 1, Y);
  for (const char* key : {"Observed fishery proportion", "Predicted fishery proportion",
                          "Fishery proportion residuals", "Standardized fishery proportion residuals"}) {
    Block(w, std::string(key) + " at age by year", Y, A);
  }
  WriteSurveyAges(w);
  for (const char* kind : {"Population", "Spawning"}) {
    const std::string lower = kind[0] == 'P' ? "population" : "spawning";
    YearBlock(w, std::string(kind) + " biomass (mt) by year");
    Block(w, "Depletion ratio in " + last + " for " + lower + " biomass", 1, 1);
    Block(w, "Ratio in " + last + " relative to " + first + " " + lower + " biomass", 1, 1);
  }
  YearBlock(w, "Exploitable biomass (mt) by year");
  w.Line("Population numbers at age (thousands) at the start of the terminal year plus one, 2020");
  w.Line(Years(1, A));
  w.Line(Numbers(A));
  Block(w, "Mean recruitment (thousands of fish)", 1, 1);
  w.Line("Recruitment (thousands of age-1 fish) by year");
  w.Line(Years(kLargeFirstYear - A + 1, Y + A - 1));
  w.Line(Numbers(Y + A - 1));
  Block(w, "Standardized log-scale residuals for recruitment", 1, Y + A - 1);
  YearBlock(w, "Observed catch biomass (mt) by year");
  for (const char* key : {"Predicted catch biomass (mt) by year", "Residuals for catch biomass (mt) by year",
                          "Standardized log-scale residuals for catch biomass by year"}) {
    Block(w, key, 1, Y);
  }
  YearBlock(w, "Annual surplus production (mt)", Y - 1);
  YearBlock(w, "Annual fishing mortality (fully selected) by year");
  Block(w, "Standardized log-scale residuals for fishing mortality by year", 1, Y);
  for (int i = 0; i < 2; ++i) Block(w, "Ratio of F in " + last + " to F in " + first, 1, 1);
  w.Line("End of ratios");
  w.Line("Fishery selectivity by age");
  for (int p = 1; p <= P; ++p) {
    w.Line("Selectivity period " + std::to_string(p) + " from " + first + " to " + last);
    w.Line(Years(1, A));
    w.Line(Numbers(A));
  }
  for (int s = 1; s <= S; ++s) {
    w.Line("Selectivity by age for survey: " + std::to_string(s));
    w.Line(Years(1, A));
    w.Line(Numbers(A));
  }
  w.Line("Objective function value: 224.9993");
  w.Line("Likelihood components");
  w.Line("Recruitment deviations: 1");
  w.Line("Fishery age composition: 1");
  for (int s = 1; s <= S; ++s) w.Line("Survey age composition " + std::to_string(s) + ": 1");
  w.Line("Fishery selectivity: 0");
  w.Line("Catch biomass: 1");
  for (int s = 1; s <= S; ++s) w.Line("Survey Biomass index " + std::to_string(s) + ": 1");
  w.Line("Fishing mortality deviations penalty: 1");
  w.Line("Other penalties and priors: 1");
  w.Line("Root mean square errors");
  w.Line("Recruitment deviations: 1");
  w.Line("Catch biomass: 1");
  for (int s = 1; s <= S; ++s) w.Line("Survey index " + std::to_string(s) + ": 1");
  w.Line("Fishing mortality deviations: 1");
  w.Line("Fishery Years: " + Years());
  w.Line("Fishery age RMSE: " + Numbers(Y));
  for (int s = 1; s <= S; ++s) {
    w.Line("Survey " + std::to_string(s) + " Years: " + Years());
    w.Line("Survey " + std::to_string(s) + " RMSE: " + Numbers(Y));
  }
  const auto by_year = [&](const std::string& key, int columns, bool year_behind) {
    for (int y = 0; y < Y; ++y) {
      const std::string year = std::to_string(kLargeFirstYear + y);
      w.Line(key + (year_behind ? " = " + year + " " : " " + year + " = ") + Numbers(columns));
    }
  };
  by_year("Fishery selectivity", A, false);
  w.Line("M SCALAR = 0.2");
  w.Line("M MULT = " + Numbers(A));
  w.Line("M AT AGE = " + Numbers(A));
  w.Line("UNFISHED MEAN REC = 1");
  w.Line("unfished mean spawning weight at age (kg) = " + Numbers(A));
  w.Line("unfished expected spawnings at age = " + Numbers(A));
  w.Line("unfished spawning biomass per recruit (kg) = 1");
  w.Line("unfished spawning biomass (mt) = 1");
  by_year("fraction of unfished spawning biomass", 1, true);
  for (const char* key : {"catch", "population", "spawning", "exploitable"}) {
    by_year(std::string(key) + " biomass at age (mt)", A, true);
  }
  w.Line("End of report");
  w.file.Close();
}

void WriteDeviations(const std::string& path) {
  Writer w;
  w.file.Open(path);
  w.Line(" index   name   value      std.dev");
  int index = 0;
  const auto vector = [&](const char* name, int count) {
    for (int i = 0; i < count; ++i) {
      w.Line(std::to_string(++index) + " " + name + " " + Number() + " " + Number());
    }
  };
  const struct {
    const char* name;
    int count;
  } rows[] = {{"mean_log_rec", 1},
              {"rec_dev", Y + A - 1},
              {"log_avg_fmort", 1},
              {"fmort_dev", Y},
              {"log_beta_FISH", P},
              {"log_a50_FISH", P},
              {"qSURVEY", S},
              {"meanr", 1},
              {"popnbiom", Y},
              {"spawnbiom", Y},
              {"explbiom", Y},
              {"recruitment", Y + A - 1},
              {"surplus_production", Y - 1},
              {"deppopnbiom", 1},
              {"depspawnbiom", 1},
              {"depF", 1},
              {"endN", A},
              {"projN", A},
              {"fullF", Y}};
  for (const auto& row : rows) vector(row.name, row.count);
  w.file.Close();
}

}  // namespace

std::string WriteLargeCase(const std::string& folder) {
  WriteData(JoinPath(folder, "large.dat"));
  WriteParameters(JoinPath(folder, "large.pin"));
  const std::string control = JoinPath(folder, "large.ctl");
  Writer w;
  w.file.Open(control);
  w.Item("Model Description", "Large");
  w.Item("Parameter Input File", JoinPath(folder, "large.pin"));
  w.Item("Input Data File", JoinPath(folder, "large.dat"));
  w.file.Close();
  return control;
}

void WriteLargeResults(const std::string& folder) {
  WriteReport(JoinPath(folder, "large.rep"));
  WriteDeviations(JoinPath(folder, "large.std"));
  Writer w;
  w.file.Open(JoinPath(folder, "large.par"));
  w.Line("# Number of parameters = 0");
  w.file.Close();
}

}  // namespace tarnvik
