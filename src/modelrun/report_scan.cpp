// The report scan: the sections of the report in the order in which they stand in it, and the scan around
// them.
#include "modelrun/report_scan.h"

#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "modelrun/scan.h"
#include "platform/host.h"
#include "platform/paths.h"
#include "plots/output_plots.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

RowList YearRows() { return RowsTo(NYears); }
RowList AgeRows() { return RowsTo(NAges); }
RowList RecruitRows() { return RowsTo(RecruitYears()); }

void ReadRatio(int label) { frmOutputData->lblRatio(label).SetCaption(TokenFirst(ReadLine())); }

// A total by year behind the line of years, into its column of the table of biomass totals.
void ReadBiomassTotal(int col) {
  SkipLines(1);
  ReadDown(ResultTable(kTableBiomass), 0, col, YearRows());
}

void ReadInputSampleSizes() {
  Grid& grid = PrepareResultTable(kTableFisherySample);
  ReadDown(grid, 0, 0, RowsTo(FishAgeNYears));
  FishAgeYears.ReDim(FishAgeNYears);
  for (int i = 1; i <= FishAgeNYears; ++i) FishAgeYears(i) = ValInt(grid.TextMatrix(i, 0));
  ReadDown(grid, 0, 1, RowsTo(FishAgeNYears));
}

void ReadRecruitment() {
  Grid& grid = PrepareResultTable(kTableRecruitment);
  ReadDown(grid, 0, 0, RecruitRows());
  ReadDown(grid, 0, 1, RecruitRows());
}

// A section whose key holds a year of the case.
void ScanRatioOfF(const std::string& to_year, int label, const char* what) {
  if (!FindKeysInOrder("RATIO OF F IN", "TO F IN " + to_year)) FailToRetrieve(what);
  ReadRatio(label);
}

// Values behind the equals sign of lines of their own, the line in the buffer being the first of them: the
// key line alone holds all ages, or there is a line per year.
void TakeAges(int table) { PutDown(PrepareResultTable(table), 0, 1, AgeRows(), TextBehindEquals()); }

void TakeByYear(int table, void (*take)(Grid& grid, int year)) {
  Grid& grid = PrepareResultTable(table);
  for (int year = 1; year <= NYears; ++year) {
    if (year > 1) ReadLine();
    take(grid, year);
  }
}

void TakeSelectivity(Grid& grid, int year) { PutAcross(grid, year, 1, NAges, Line(), 5); }
void TakeFraction(Grid& grid, int year) { grid.SetTextMatrix(year, 1, Word(TextBehindEquals(), 2)); }
void TakeAgesOfYear(Grid& grid, int year) { PutAcross(grid, year, 1, NAges, TextBehindEquals(), 2); }

void TakeUnfished(int label) { frmOutputData->lblUnfished(label).SetCaption(Trim(TextBehindEquals())); }

struct Section {
  const char* key;     // null: the section looks for its lines itself
  const char* second;  // null, or what must stand in the same line
  const char* what;    // for the message when the key is missing
  void (*read)();      // reads on from the key line
};

const Section kSections[] = {
    {"FISH AT AGE", nullptr, "Estimated Numbers of Fish at Age from Report File",
     [] { ReadBlock(PrepareResultTable(kTableNumbers), 0, 1, YearRows()); }},
    {"FISHING MORTALITY", nullptr, "Estimated Fishing Mortality from Report File",
     [] { ReadBlock(PrepareResultTable(kTableAgeF), 0, 1, YearRows()); }},
    {nullptr, nullptr, nullptr, ScanCpue},
    {nullptr, nullptr, nullptr, ScanSurveyIndices},
    {"COMPOSITION INPUT SAMPLE SIZE", nullptr, "Fishery Age Composition Input Sample Size from Report File",
     ReadInputSampleSizes},
    {"COMPOSITION ESTIMATED EFFECTIVE SAMPLE SIZE", nullptr,
     "Fishery Age Composition Estimated Effective Sample Size from Report File",
     [] { ReadDown(ResultTable(kTableFisherySample), 0, 2, RowsTo(FishAgeNYears)); }},
    {"OBSERVED FISHERY PROPORTION", nullptr, "Observed Fishery Proportion at Age from Report File",
     [] { ReadBlock(PrepareResultTable(kTableFisheryAge), 0, 2, FisheryAgeRows()); }},
    {"PREDICTED FISHERY PROPORTION", nullptr, "Predicted Fishery Proportion at Age from Report File",
     [] { ReadBlock(ResultTable(kTableFisheryAge), NYears, 2, YearRows()); }},
    {"FISHERY PROPORTION RESIDUALS", nullptr, "Fishery Proportion Residuals at Age from Report File",
     [] { ReadBlock(ResultTable(kTableFisheryAge), 2 * NYears, 2, FisheryAgeRows()); }},
    {"STANDARDIZED FISHERY PROPORTION RESIDUALS", nullptr,
     "Standardized Fishery Proportion Residuals at Age from Report File",
     [] { ReadBlock(ResultTable(kTableFisheryAge), 3 * NYears, 2, FisheryAgeRows()); }},
    {nullptr, nullptr, nullptr, ScanSurveyAges},
    {"POPULATION BIOMASS (MT)", nullptr, "Population Biomass from Report File",
     [] {
       PrepareResultTable(kTableBiomass);
       ReadBiomassTotal(1);
     }},
    {"DEPLETION RATIO IN", "FOR POPULATION BIOMASS", "Population Biomass in the Last Year from Report File",
     [] { ReadRatio(kRatioPopulation); }},
    {"RELATIVE TO", "POPULATION BIOMASS",
     "Population Biomass in the Last Year Relative to the Reference Year from Report File",
     [] { ReadRatio(kRatioPopulationRef); }},
    {"SPAWNING BIOMASS (MT)", nullptr, "Spawning Biomass from Report File", [] { ReadBiomassTotal(3); }},
    {"DEPLETION RATIO IN", "FOR SPAWNING BIOMASS", "Spawning Biomass in the Last Year from Report File",
     [] { ReadRatio(kRatioSpawningRef); }},
    {"RELATIVE TO", "SPAWNING BIOMASS",
     "Spawning Biomass in the Last Year Relative to the Reference Year from Report File",
     [] { ReadRatio(kRatioSpawning); }},
    {"EXPLOITABLE BIOMASS (MT)", nullptr, "Exploitable Biomass from Report File",
     [] { ReadBiomassTotal(5); }},
    {"POPULATION NUMBERS AT AGE", "TERMINAL YEAR PLUS ONE",
     "Population Numbers at Age at the Start of the Terminal Year Plus One from Report File",
     [] {
       SkipLines(1);
       ReadAcross(ResultTable(kTableNumbers), NYears + 1, 1, NAges);
     }},
    {"MEAN RECRUITMENT", nullptr, "Mean Recruitment from Report File", [] { ReadRatio(kRatioMeanRec); }},
    {"RECRUITMENT (THOUSANDS OF AGE-1", nullptr, "Recruitment by Year from Report File", ReadRecruitment},
    {"LOG-SCALE RESIDUALS FOR RECRUITMENT", nullptr,
     "Standardized Log-Scale Residuals for Recruitment from Report File",
     [] { ReadDown(ResultTable(kTableRecruitment), 0, 3, RecruitRows()); }},
    {"OBSERVED CATCH BIOMASS", nullptr, "Observed Catch Biomass from Report File",
     [] {
       SkipLines(1);
       ReadDown(PrepareResultTable(kTableCatch), 0, 1, YearRows());
     }},
    {"PREDICTED CATCH BIOMASS", nullptr, "Predicted Catch Biomass from Report File",
     [] { ReadDown(ResultTable(kTableCatch), 0, 2, YearRows()); }},
    {"RESIDUALS FOR CATCH BIOMASS", nullptr, "Residuals for Catch Biomass from Report File",
     [] { ReadDown(ResultTable(kTableCatch), 0, 3, YearRows()); }},
    {"LOG-SCALE RESIDUALS FOR CATCH BIOMASS", nullptr,
     "Standardized Log-Scale Residuals for Catch Biomass from Report File",
     [] { ReadDown(ResultTable(kTableCatch), 0, 4, YearRows()); }},
    {"ANNUAL SURPLUS PRODUCTION", nullptr, "Annual Surplus Production from Report File",
     [] {
       SkipLines(1);
       ReadDown(PrepareResultTable(kTableSurplus), 0, 1, RowsTo(NYears - 1));
     }},
    {"ANNUAL FISHING MORTALITY", nullptr,
     "Estimated Average Annual Fishing Mortality by Year from Report File",
     [] {
       SkipLines(1);
       ReadDown(PrepareResultTable(kTableAverageF), 0, 1, YearRows());
     }},
    {"LOG-SCALE RESIDUALS FOR FISHING MORTALITY", nullptr,
     "Standardized Log-Scale Residuals for Fishing Mortality from Report File",
     [] { ReadDown(ResultTable(kTableAverageF), 0, 3, YearRows()); }},
    {nullptr, nullptr, nullptr,
     [] {
       ScanRatioOfF(std::to_string(NFYear), 4,
                    "Ratio of F in the Last Year to F in the First Year from Report File");
     }},
    {nullptr, nullptr, nullptr,
     [] {
       ScanRatioOfF(frmInput->cmbRefYr.Text(), 5,
                    "Ratio of F in the Last Year to F in the Reference Year from Report File");
     }},
    {nullptr, nullptr, nullptr, ScanReferencePoints},
    {"FISHERY SELECTIVITY BY AGE", nullptr, "Fishery Selectivity by Age from Report File",
     ScanFisherySelectivity},
    {"SELECTIVITY BY AGE FOR SURVEY", nullptr, "Survey Selectivity by Age from Report File",
     ScanSurveySelectivity},
    {"OBJECTIVE FUNCTION", nullptr, "Objective Function Value from Report File",
     [] { frmOutputData->lblSumm(kObjectiveFunction).SetCaption(Word(Line(), 4)); }},
    {"LIKELIHOOD COMPONENTS", nullptr, "Likelihood Components from Report File", ScanLikelihood},
    {"ROOT MEAN SQUARE", nullptr, "Root Mean Square Errors from Report File", ScanErrors},
    {"FISHERY YEARS:", nullptr, "Root Mean Square Errors from Report File", ScanFisheryAgeErrors},
    {"SURVEY 1 YEARS:", nullptr, "Root Mean Square Errors from Report File", ScanSurveyAgeErrors},
    {"FISHERY SELECTIVITY", nullptr, "Fishery Selectivity at Age by Year from Report File",
     [] { TakeByYear(kTableAnnualSelectivity, TakeSelectivity); }},
    {nullptr, nullptr, nullptr, ScanNaturalMortality},
    {"UNFISHED MEAN SPAWN", nullptr, "Unfished Mean Spawning Weight at Age from Report File",
     [] { TakeAges(kTableUnfishedWeight); }},
    {"UNFISHED EXPECTED SPAWN", nullptr, "Unfished Expected Spawning Weight at Age from Report File",
     [] { TakeAges(kTableUnfishedSpawnings); }},
    {"UNFISHED SPAWNING BIOMASS PER", nullptr, "Unfished Spawning Biomass Per Recruit from Report File",
     [] { TakeUnfished(kUnfishedPerRecruit); }},
    {"UNFISHED SPAWNING BIO", nullptr, "Unfished Spawning Biomass from Report File",
     [] { TakeUnfished(kUnfishedSpawning); }},
    {"FRACTION OF UNFISHED", nullptr, "Fraction of Unfished Spawning Biomass by Year from Report File",
     [] { TakeByYear(kTableUnfishedFraction, TakeFraction); }},
    {"CATCH BIOMASS AT AGE", nullptr, "Catch Biomass at Age by Year from Report File",
     [] { TakeByYear(kTableCatchAtAge, TakeAgesOfYear); }},
    {"POPULATION BIOMASS AT AGE", nullptr, "Population Biomass at Age by Year from Report File",
     [] { TakeByYear(kTablePopulationAtAge, TakeAgesOfYear); }},
    {"SPAWNING BIOMASS AT AGE", nullptr, "Spawning Biomass at Age by Year from Report File",
     [] { TakeByYear(kTableSpawningAtAge, TakeAgesOfYear); }},
    {"EXPLOITABLE BIOMASS AT AGE", nullptr, "Exploitable Biomass at Age by Year from Report File",
     [] { TakeByYear(kTableExploitableAtAge, TakeAgesOfYear); }},
};

void ScanSection(const Section& section) {
  if (section.key) {
    const bool found = section.second ? FindKeys(section.key, section.second) : FindKey(section.key);
    if (!found) FailToRetrieve(section.what);
  }
  section.read();
}

bool ResultFilesExist() {
  const struct {
    const std::string& path;
    const char* missing;
  } files[] = {
      {ReportPath, "Report File Missing"},
      {StdPath, "Standard Deviation File Missing"},
      {ParPath, "Output Parameter File Missing"},
  };
  for (const auto& file : files) {
    if (file.path.empty() || !FileExists(file.path)) {
      ShowMessage(file.missing, Icon::Exclamation);
      return false;
    }
  }
  return true;
}

void ShowResults() {
  frmOutputData->SSTab2.SetTab(0);
  frmOutputData->SSTab3.SetTab(0);
  frmOutput->SSTab1.SetTab(0);
  StdFileRead = kFalse;
  ParFileRead = kFalse;
  if (FileExists(StdPath)) ScanStdFile();
  if (StdFileRead == kFalse) ScanParFile();
  OutputFormsOpen = kTrue;
  RefreshOutputPlots();
  BringFormToFront(frmOutputData);
}

// The trap of the scan: nothing of it survives, since the tables belong to the forms.
void EndFailedScan(const std::string& error) {
  SetMousePointer(Pointer::Default);
  ShowMessage(std::string("Error Scanning in Report File") + kLineBreak + ReportPath + kLineBreak + error,
              Icon::Exclamation);
  File1.Close();
  UnloadForm(frmOutput);
  UnloadForm(frmOutputData);
  UnloadForm(frmSTD);
}

}  // namespace

void FailToRetrieve(std::string_view what) {
  ShowMessage("Unable to Retrieve " + std::string(what), Icon::Exclamation);
  throw RunTimeError(kErrScan);
}

void ScanReportFile() {
  if (!ResultFilesExist()) return;
  try {
    SetMousePointer(Pointer::Hourglass);
    File1.Open(ReportPath);
    ReadLine();
    if (!LineHolds("VERSION 1.4")) {
      ShowMessage(
          std::string("Output Files Not Current.") + kLineBreak + "Please Run Model Before Proceeding.",
          Icon::Information);
      SetMousePointer(Pointer::Default);
      File1.Close();
      return;
    }
    for (const Section& section : kSections) ScanSection(section);
    File1.Close();
    ShowResults();
  } catch (...) {
    EndFailedScan(CurrentErrorText());
  }
}

}  // namespace tarnvik
