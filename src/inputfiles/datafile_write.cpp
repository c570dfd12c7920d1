// Writer of the data file: head, dimensions, fishery, surveys, biology. It is always of the current version.

#include "inputfiles/datafile_write.h"

#include "core/frmmain.h"
#include "core/globals.h"
#include "inputfiles/datafile.h"
#include "platform/host.h"

namespace tarnvik {

void WriteColumn(OutputFile& file, const Grid& grid, int col, int last_row, std::string_view separator) {
  for (int row = 1; row <= last_row; ++row) PrintItem(file, grid.TextMatrix(row, col), separator);
  file.EndLine();
}

void WriteMarks(OutputFile& file, const ListBox& list) {
  for (int item = 0; item < list.ListCount(); ++item) PrintFlag(file, list.Selected(item));
  file.EndLine();
}

void EndWithTitles(OutputFile& file, std::string_view comment) {
  file.Print(comment);
  file.Print(" (");
  for (int survey = 1; survey <= NIndex; ++survey) {
    if (survey > 1) file.Print(",");
    file.Print(SurvTitle(survey));
  }
  file.PrintLine(")");
}

namespace {

int LastRow(const Grid& grid) { return grid.Rows() - 1; }

void PrintSpan(OutputFile& file, std::string_view first, std::string_view last) {
  file.Print(first);
  file.Print("-");
  file.Print(last);
}

// The years of a grid that may be condensed: those of its first and its last row.
void PrintGridSpan(OutputFile& file, const Grid& grid) {
  PrintSpan(file, grid.TextMatrix(1, 0), grid.TextMatrix(LastRow(grid), 0));
}

// Columns of a grid, one line per row.
void WriteRows(OutputFile& file, const Grid& grid, int first_col) {
  for (int row = 1; row < grid.Rows(); ++row) {
    for (int col = first_col; col < grid.Cols(); ++col)
      PrintItem(file, grid.TextMatrix(row, col), kTwoBlanks);
    file.EndLine();
  }
}

// "(<description>) ", nothing for a case without one.
void PrintDescription(OutputFile& file, const InputForm& form) {
  if (IsNone(form.txtModel.Text())) return;
  file.Print("(");
  file.Print(form.txtModel.Text());
  file.Print(") ");
}

// " 1 2 3+", the last age being the plus group.
void EndWithAges(OutputFile& file) {
  for (int age = 1; age <= NAges; ++age) {
    file.Print(kOneBlank);
    file.Print(NumberText(age));
  }
  file.PrintLine("+");
}

void WriteHead(OutputFile& file, const InputForm& form) {
  file.PrintLine("# Statistical Catch-at-Age Model: Tarnvik Version 1.4");
  file.Print("# Model Description:  ");
  file.PrintLine(form.txtModel.Text());
  file.Print("# file = ");
  file.PrintLine(DatFilePath);
}

void WriteDimensions(OutputFile& file, const InputForm& form) {
  file.PrintLine("# styr endyr recyr depyr");
  PrintItem(file, form.cmbNFYear.Text(), kOneBlank);
  PrintItem(file, form.cmbNXYear.Text(), kOneBlank);
  PrintItem(file, form.cmbRecYr.Text(), kOneBlank);
  file.PrintLine(form.cmbRefYr.Text());
  file.PrintLine("# Number of age classes");
  file.PrintLine(form.cmbNAges.Text());
  file.PrintLine("# Number of surveys");
  file.PrintLine(form.cmbNIndex.Text());
  file.PrintLine("# Number of fishery selectivity periods");
  file.PrintLine(form.cmbSelPer.Text());
}

void WriteFisherySelectivity(OutputFile& file, const InputForm& form) {
  file.PrintLine("# Starting years of fishery selectivity periods");
  WriteColumn(file, form.ORVFlexGrid(kGridPeriods), 1, LastRow(form.ORVFlexGrid(kGridPeriods)), kOneBlank);
  file.PrintLine("# Number of ages (1..nselage_FISH) to estimate fishery selectivity by period");
  WriteColumn(file, form.ORVFlexGrid(kGridFisherySelAges), 1, LastRow(form.ORVFlexGrid(kGridFisherySelAges)),
              kOneBlank);
  file.PrintLine("# Choose fishery selectivity model (set use_parametric_sel_FISH)");
  file.PrintLine("# use_parametric_sel_FISH=1 implies parametric fishery selectivity");
  file.PrintLine("# use_parametric_sel_FISH=0 implies nonparametric fishery selectivity");
  file.PrintLine(form.opFSelModel(kParametric).Value() ? "1" : "0");
  file.PrintLine("# Apply 1st, 2nd, or 3rd difference smoothers to fishery selectivity");
  file.PrintLine("# Set use_sel_smooth_FISH(1) = 1 to apply 1st difference");
  file.PrintLine("# Set use_sel_smooth_FISH(2) = 1 to apply 2nd difference");
  file.PrintLine("# Set use_sel_smooth_FISH(3) = 1 to apply 3rd difference");
  for (int difference = 0; difference <= 2; ++difference)
    PrintFlag(file, form.chkSmooth(difference).IsChecked());
  file.EndLine();
}

void WriteCatch(OutputFile& file, const InputForm& form) {
  file.Print("# Catch biomass:");
  file.Print(form.cmbNFYear.Text());
  file.Print(" to ");
  file.Print(form.cmbNXYear.Text());
  file.Print(", n=");
  file.PrintLine(NumberText(NYears));
  WriteColumn(file, form.ORVFlexGrid(kGridCatch), 1, LastRow(form.ORVFlexGrid(kGridCatch)), kTwoBlanks);
}

void WriteCpue(OutputFile& file, const InputForm& form) {
  const Grid& cpue = form.ORVFlexGrid(kGridCpue);
  file.Print("# Number years of fishery CPUE data ");
  PrintGridSpan(file, cpue);
  file.PrintLine(" (default=nobs_FISH)");
  file.PrintLine(NumberText(LastRow(cpue)));
  file.PrintLine("# Ages in CPUE (1=include age group, 0=exclude age group)");
  WriteMarks(file, form.lstCPUEages);
  file.PrintLine("# Years to fit fishery CPUE data (1=fit CPUE, 0=do not fit CPUE)");
  file.Print("# Fit FISHERY CPUE data (");
  PrintGridSpan(file, cpue);
  file.PrintLine(")");
  // With the fit switched off for the whole series the model wants no single year fitted either.
  const bool fitted = form.chkFitFishCPUE.IsChecked();
  for (int row = 1; row < cpue.Rows(); ++row) PrintFlag(file, fitted && IsYes(cpue.TextMatrix(row, 2)));
  file.EndLine();
  file.PrintLine("# Years of fishery CPUE data");
  WriteColumn(file, cpue, 0, LastRow(cpue), kTwoBlanks);
  file.PrintLine("# Observed fishery CPUE data (nobs_CPUE data points)");
  WriteColumn(file, cpue, 1, LastRow(cpue), kTwoBlanks);
  file.PrintLine("# Fraction of Z Prior to CPUE index (default=0.5)");
  file.PrintLine(form.txtZCpue.Text());
}

void WriteFisheryAges(OutputFile& file, const InputForm& form) {
  constexpr int kFit = 1, kSamples = 2, kFirstAge = 3;
  const Grid& ages = form.ORVFlexGrid(kGridFisheryAge);
  file.Print("# Number years of fishery age data ");
  PrintGridSpan(file, ages);
  file.PrintLine(" (nobs_FISH)");
  file.PrintLine(NumberText(LastRow(ages)));
  file.PrintLine("# Years to fit fishery age compositions (1=fit agecomp, 0=do not fit agecomp)");
  file.Print("# Fit FISHERY age composition data (");
  PrintGridSpan(file, ages);
  file.PrintLine(")");
  for (int row = 1; row < ages.Rows(); ++row) PrintFlag(file, BeginsYes(ages.TextMatrix(row, kFit)));
  file.EndLine();
  file.PrintLine("# Years of fishery age composition data");
  WriteColumn(file, ages, 0, LastRow(ages), kTwoBlanks);
  file.PrintLine("# Number of age samples in fishery (nsamples_fish)");
  WriteColumn(file, ages, kSamples, LastRow(ages), kTwoBlanks);
  file.Print("# Fishery age composition data ");
  PrintDescription(file, form);
  EndWithAges(file);
  WriteRows(file, ages, kFirstAge);
}

// A table of weights or shares at age by year.
void WriteAtAge(OutputFile& file, const InputForm& form, std::string_view comment, int grid, bool described) {
  file.Print(comment);
  if (described) PrintDescription(file, form);
  EndWithAges(file);
  WriteRows(file, form.ORVFlexGrid(grid), 1);
}

}  // namespace

void WriteFisheryLines(OutputFile& file, InputForm& form) {
  WriteHead(file, form);
  WriteDimensions(file, form);
  WriteFisherySelectivity(file, form);
  WriteCatch(file, form);
  WriteCpue(file, form);
  WriteFisheryAges(file, form);
}

void WriteBiologyLines(OutputFile& file, InputForm& form) {
  WriteAtAge(file, form, "# Catch Weight at age ", 6, true);
  WriteAtAge(file, form, "# Stock Weight at age ", 4, true);
  WriteAtAge(file, form, "# Spawning Weight at age ", 14, true);
  file.PrintLine("# Fraction of Z Prior to Spawning Season (fraction of year)");
  file.PrintLine(form.txtFractionZ.Text());
  WriteAtAge(file, form, "# Maturity at age ", 7, false);
  file.PrintLine("# Age-specific multiplier for natural mortality (mult_M)");
  file.PrintLine("# with convention that mult_M(nages) = 1 for the plus group");
  WriteColumn(file, form.ORVFlexGrid(kGridMMultiplier), 1, NAges, kOneBlank);
}

void WriteDataFile() {
  FilesSaved = kFalse;
  DatFilePath = frmInput->lblFile(kFileDat).Caption();
  try {
    InputForm& form = *frmInput;
    OutputFile file;
    file.Open(DatFilePath);
    WriteFisheryLines(file, form);
    WriteSurveyLines(file, form);
    WriteBiologyLines(file, form);
    WriteSettingLines(file, form);
    file.Close();
    FilesSaved = kTrue;
    frmMain->mnuModelScan.SetEnabled(false);  // results no longer belong to what is on disk
  } catch (...) {
    ShowMessage(std::string("Error Saving Input Data File ") + kLineBreak + CurrentErrorText(),
                Icon::Exclamation);
  }
}

}  // namespace tarnvik
