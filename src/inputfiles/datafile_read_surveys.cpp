// Reader of the data file: the surveys. Each block runs over all surveys before the next one begins.

#include <string>
#include <vector>

#include "core/globals.h"
#include "inputedit/labels.h"
#include "inputfiles/datafile_read.h"

namespace tarnvik {

namespace {

[[noreturn]] void RefuseTitles() {
  throw RefusedValue{"Unable to Retrieve Number of Years of Survey Data", false};
}

// The titles stand in the comment before the counts of years: "(<title>,<title>)". It is searched for, so
// that lines too many before it do no harm.
void ReadTitles() {
  std::string_view line;
  do {
    if (File1.AtEnd()) RefuseTitles();
    line = File1.ReadLine();
  } while (!HoldsUpper(line, "NUMBER OF YEARS OF") || !HoldsUpper(line, "SURVEY DATA"));
  const std::size_t open = line.find('(');
  if (open == std::string_view::npos) RefuseTitles();
  line.remove_prefix(open + 1);
  for (int survey = 1; survey <= NIndex; ++survey) {
    const std::size_t mark = line.find(survey < NIndex ? ',' : ')');
    if (mark == std::string_view::npos) RefuseTitles();
    SurvTitle(survey) = Trim(line.substr(0, mark));
    line.remove_prefix(mark + 1);
  }
}

void ReadYearCounts() {
  LineWords words(ReadDataLine());
  for (int survey = 1; survey <= NIndex; ++survey) {
    SurvNYears(survey) = ValInt(words.Next());
    if (SurvNYears(survey) > NYears) {
      throw RefusedValue{"Invalid Value for Number of Years of Survey Data for Survey " + NumberText(survey)};
    }
  }
}

void ReadAgesInIndex(Grid& ages, double version) {
  for (int survey = 1; survey <= NIndex; ++survey) {
    if (version >= 1.2) {
      LineWords words(ReadDataLine());
      for (int age = 1; age <= NAges; ++age) ages.SetTextMatrix(age, survey, YesNo(IsOne(words.Next())));
    } else {
      for (int age = 1; age <= NAges; ++age) ages.SetTextMatrix(age, survey, "y");
    }
  }
}

// One letter per year of a survey, held until the survey's first year is known.
using YearFlags = std::vector<std::string>;

YearFlags ReadFitFlags(double version) {
  YearFlags flags;
  for (int survey = 1; survey <= NIndex; ++survey) {
    std::string& letters = flags.emplace_back();
    if (version >= 1.2) {
      LineWords words(ReadDataLine());
      for (int j = 0; j < SurvNYears(survey); ++j) letters += YesNo(IsOne(words.Next()));
    } else if (SurvNYears(survey) > 0) {
      letters.assign(static_cast<std::size_t>(SurvNYears(survey)), 'y');
    }
  }
  return flags;
}

void PutYears(SurveyTable<std::string>& table, int survey, std::string_view flags) {
  int row = StoreRow(survey);
  for (const char flag : flags) {
    table(survey, kStoreYear, row) = NumberText(NFYear + row - 1);
    table(survey, kStoreFit, row) = flag;
    ++row;
  }
}

// A survey's years are continuous: of each line the first word alone counts.
void ReadSurveyYears(const YearFlags& index_flags, const YearFlags& age_flags) {
  for (int survey = 1; survey <= NIndex; ++survey) {
    SurvFYear(survey) = ValInt(TokenFirst(ReadDataLine()));
    SurvXYear(survey) = Int16(SurvFYear(survey) + SurvNYears(survey) - 1);
    const auto at = static_cast<std::size_t>(survey - 1);
    PutYears(SurvYearFit, survey, index_flags[at]);
    PutYears(SurvAgeFit, survey, age_flags[at]);
  }
}

void ReadValues(SurveyTable<std::string>& table) {
  for (int survey = 1; survey <= NIndex; ++survey) {
    LineWords words(ReadDataLine());
    const int first = StoreRow(survey);
    for (int j = 0; j < SurvNYears(survey); ++j) table(survey, kStoreValue, first + j) = words.Next();
  }
}

void ReadAgeCompositions() {
  for (int survey = 1; survey <= NIndex; ++survey) {
    const int first = StoreRow(survey);
    for (int j = 0; j < SurvNYears(survey); ++j) {
      LineWords words(ReadDataLine());
      for (int age = 1; age <= NAges; ++age)
        SurvAgeFit(survey, kStoreBeforeAges + age, first + j) = words.Next();
    }
  }
}

void ReadSelectivity(InputForm& form, double version) {
  int option = 0;
  if (version >= 1.4) {
    ReadColumn(form.ORVFlexGrid(kGridSurveySelAges), 1, NIndex);
    option = IsOne(TokenFirst(ReadDataLine())) ? 0 : 1;
  }
  form.opSurvSelModel(option).SetValue(true);
}

}  // namespace

void ReadSurveyLines(InputForm& form, double version) {
  ReadSelectivity(form, version);
  ReadTitles();
  RelabelSurveys();
  ReadYearCounts();
  ReadAgesInIndex(form.ORVFlexGrid(kGridIndexAges), version);
  const YearFlags index_flags = ReadFitFlags(version);
  const YearFlags age_flags = ReadFitFlags(version);
  ReadSurveyYears(index_flags, age_flags);
  ReadRow(form.ORVFlexGrid(kGridSurveyZ), 1, 0, NIndex);
  ReadValues(SurvYearFit);
  ReadValues(SurvAgeFit);
  ReadAgeCompositions();
}

}  // namespace tarnvik
