// Writer of the data file: the surveys. Each block runs over all surveys before the next one begins.

#include "core/globals.h"
#include "inputfiles/datafile_write.h"

namespace tarnvik {

namespace {

// "<first>-<last>" of a survey.
void PrintSurveySpan(OutputFile& file, int survey) {
  file.Print(NumberText(SurvFYear(survey)));
  file.Print("-");
  file.Print(NumberText(SurvXYear(survey)));
}

void PrintWithTitle(OutputFile& file, std::string_view before, int survey, std::string_view behind) {
  file.Print(before);
  file.Print(SurvTitle(survey));
  file.Print(behind);
}

void WriteAgesInIndex(OutputFile& file, const Grid& ages) {
  file.PrintLine("# Ages in SURVEY (1=include age group, 0=exclude age group)");
  for (int survey = 1; survey <= NIndex; ++survey) {
    PrintWithTitle(file, "# Ages in ", survey, " SURVEY index (1..nages)");
    file.EndLine();
    for (int row = 1; row < ages.Rows(); ++row) PrintFlag(file, BeginsYes(ages.TextMatrix(row, survey)));
    file.EndLine();
  }
}

void WriteFitFlags(OutputFile& file, const SurveyTable<std::string>& table, std::string_view what) {
  for (int survey = 1; survey <= NIndex; ++survey) {
    PrintWithTitle(file, "# Fit ", survey, what);
    file.Print("(");
    PrintSurveySpan(file, survey);
    file.PrintLine(")");
    const int first = StoreRow(survey);
    for (int j = 0; j < SurvNYears(survey); ++j) PrintFlag(file, IsYes(table(survey, kStoreFit, first + j)));
    file.EndLine();
  }
}

void WriteYears(OutputFile& file) {
  for (int survey = 1; survey <= NIndex; ++survey) {
    PrintWithTitle(file, "# Years of ", survey, " SURVEY index data");
    file.EndLine();
    for (int year = SurvFYear(survey); year <= SurvXYear(survey); ++year) {
      PrintItem(file, NumberText(year), kTwoBlanks);
    }
    file.EndLine();
  }
}

void WriteValues(OutputFile& file, const SurveyTable<std::string>& table, int survey) {
  const int first = StoreRow(survey);
  for (int j = 0; j < SurvNYears(survey); ++j)
    PrintItem(file, table(survey, kStoreValue, first + j), kTwoBlanks);
  file.EndLine();
}

void WriteIndexValues(OutputFile& file) {
  for (int survey = 1; survey <= NIndex; ++survey) {
    PrintWithTitle(file, "# Untransformed ", survey, " SURVEY biomass index (kg/tow*1000), ");
    PrintSurveySpan(file, survey);
    file.EndLine();
    WriteValues(file, SurvYearFit, survey);
  }
}

void WriteSamples(OutputFile& file) {
  for (int survey = 1; survey <= NIndex; ++survey) {
    PrintWithTitle(file, "# Number of age samples in ", survey, " SURVEY (nsamples_");
    file.Print(SurvTitle(survey));
    file.PrintLine(")");
    WriteValues(file, SurvAgeFit, survey);
  }
}

void WriteAgeCompositions(OutputFile& file) {
  for (int survey = 1; survey <= NIndex; ++survey) {
    PrintWithTitle(file, "# ", survey, " SURVEY age composition data, ");
    PrintSurveySpan(file, survey);
    file.EndLine();
    const int first = StoreRow(survey);
    for (int j = 0; j < SurvNYears(survey); ++j) {
      for (int age = 1; age <= NAges; ++age) {
        PrintItem(file, SurvAgeFit(survey, kStoreBeforeAges + age, first + j), kTwoBlanks);
      }
      file.EndLine();
    }
  }
}

}  // namespace

void WriteSurveyLines(OutputFile& file, InputForm& form) {
  file.PrintLine("# Number of ages (1..nselages_SURVEY) to estimate survey selectivity");
  WriteColumn(file, form.ORVFlexGrid(kGridSurveySelAges), 1, NIndex, kOneBlank);
  file.PrintLine("# Choose survey selectivity model (set use_parametric_sel_SURVEY)");
  file.PrintLine("# use_parametric_sel_SURVEY=1 implies parametric survey selectivity");
  file.PrintLine("# use_parametric_sel_SURVEY=0 implies nonparametric survey selectivity");
  file.PrintLine(form.opSurvSelModel(kParametric).Value() ? "1" : "0");
  EndWithTitles(file, "# Number of years of SURVEY data");
  for (int survey = 1; survey <= NIndex; ++survey) PrintItem(file, NumberText(SurvNYears(survey)), kOneBlank);
  file.EndLine();
  WriteAgesInIndex(file, form.ORVFlexGrid(kGridIndexAges));
  file.PrintLine("# Years to fit SURVEY index values (1=fit annual index, 0=do not fit index)");
  WriteFitFlags(file, SurvYearFit, " SURVEY index values ");
  file.PrintLine("# Years to fit SURVEY age compositions (1=fit agecomp, 0=do not fit agecomp)");
  WriteFitFlags(file, SurvAgeFit, " SURVEY age composition data ");
  WriteYears(file);
  EndWithTitles(file, "# Fraction of Z Prior to SURVEY");
  for (int survey = 1; survey <= NIndex; ++survey) {
    PrintItem(file, form.ORVFlexGrid(kGridSurveyZ).TextMatrix(1, survey - 1), kTwoBlanks);
  }
  file.EndLine();
  WriteIndexValues(file);
  WriteSamples(file);
  WriteAgeCompositions(file);
}

}  // namespace tarnvik
