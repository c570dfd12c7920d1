// The handlers of frmOutput and of the plots of frmSTD.
#include "core/globals.h"
#include "core/text.h"
#include "platform/host.h"
#include "plots/drawing.h"
#include "plots/output_drawings.h"
#include "plots/output_lists.h"
#include "results/frmoutput.h"
#include "results/frmstd.h"

namespace tarnvik {

// --- Numbers at age

namespace {

constexpr int kMostYears = 5;

void TakeChosenYears() {
  PlotIndex = 0;
  for (int chosen = 0; chosen < kMostYears; ++chosen) {
    const std::string& year = frmOutput->lblPlot1(chosen).Caption();
    if (year.empty()) return;
    PlotIndex = Int16(chosen + 1);
    PlotSeriesSel[PlotIndex] = Int16(ValInt(year) - NFYear + 1);
  }
}

}  // namespace

void frmOutput_cboPlot1_Click(int) {
  const ComboBox& years = frmOutput->cboPlot1;
  if (years.ListIndex() < 0) return;
  TakeChosenYears();
  if (PlotIndex >= kMostYears) {
    ShowMessage("Maximum of 5 Series May Be Plotted Simulatneously", Icon::Information);
    return;
  }
  ++PlotIndex;
  frmOutput->lblPlot1(PlotIndex - 1).SetCaption(years.Text());
  PlotSeriesSel[PlotIndex] = Int16(years.ListIndex() + 1);
}

void frmOutput_cmdPlot1_Click(int) {
  TakeChosenYears();
  if (PlotIndex != 0) DrawNumbersAtAge();
}

void frmOutput_cmdClearPlot1_Click(int) {
  PlotIndex = 0;
  frmOutput->lblPlot1.ForEach([](Label& label) { label.SetCaption(""); });
  for (int i = 1; i <= kMostYears; ++i) PlotSeriesSel[i] = 0;
  ClearChart(frmOutput->Chart1);
}

// --- Lists

namespace {

// Draws what is selected in a list.
void DrawSelected(const ComboBox& list, void (*draw)()) {
  PlotIndex = Int16(list.ListIndex() + 1);
  draw();
}

}  // namespace

void frmOutput_cboPlot2_Click(int) { DrawSelected(frmOutput->cboPlot2, DrawAgeF); }
void frmOutput_cboPlot3_Click(int) { output_plots::DrawSurveyIndex(); }
void frmOutput_cboPlot4_Click(int) { DrawSelected(frmOutput->cboPlot4, DrawFisheryAgeFit); }
void frmOutput_cboPlot5a_Click(int) { FillSurveyYears(); }
void frmOutput_cboPlot5b_Click(int) { DrawSelected(frmOutput->cboPlot5b, DrawSurveyAgeFit); }
void frmOutput_cboPlot13_Click(int) {
  DrawSelected(frmOutput->cboPlot13(SelectedOption(frmOutput->Option13)),
               output_plots::DrawFisherySelectivity);
}
void frmOutput_cboPlot14_Click(int) {
  DrawSelected(frmOutput->cboPlot14, output_plots::DrawSurveySelectivity);
}
void frmOutput_cboPlot18_Click(int) { DrawSelected(frmOutput->cboPlot18, DrawSurveySampleSize); }
void frmOutput_Combo7_Click(int) { DrawBiomassAtAge(); }

// --- Limits to the years with observations

void frmOutput_Check4_Click(int) { RefillFisheryYears(); }
void frmOutput_Check5_Click(int) { RefillSurveyYears(); }

namespace {

// To check the box fills the list, which draws.
void LimitToObserved(int option, CheckBox& check, void (*draw)(int)) {
  check.SetEnabled(option == 0);
  if (option > 0 && !check.IsChecked()) {
    check.SetValue(1);
  } else {
    draw(0);
  }
}

}  // namespace

void frmOutput_Option4_Click(int) {
  LimitToObserved(SelectedOption(frmOutput->Option4), frmOutput->Check4, frmOutput_cboPlot4_Click);
}

void frmOutput_Option5_Click(int) {
  LimitToObserved(SelectedOption(frmOutput->Option5), frmOutput->Check5, frmOutput_cboPlot5b_Click);
}

// --- Options

namespace {

// The bands around a value need the file of standard deviations; residuals have none.
void AllowBands(int band, CommandButton& button, const ControlArray<OptionButton>& options) {
  const bool allowed = SelectedOption(options) == 0 && StdFileRead != kFalse;
  for (TextBox* box : {&frmOutput->txtSTDplus(band), &frmOutput->txtSTDminus(band)}) {
    box->SetEnabled(allowed);
    box->SetBackColor(allowed ? kWindowBackground : kButtonFace);
  }
  button.SetEnabled(allowed);
}

}  // namespace

void frmOutput_Option3a_Click(int) { output_plots::DrawSurveyIndex(); }
void frmOutput_Option6_Click(int) { DrawBiomassTotals(); }

void frmOutput_Option7_Click(int) {
  ShowBiomassSelector();
  DrawBiomassAtAge();
}

void frmOutput_Option8_Click(int) { DrawUnfished(); }

void frmOutput_Option9_Click(int) {
  AllowBands(3, frmOutput->cmdPlot9, frmOutput->Option9);
  DrawRecruits();
}

void frmOutput_Option10_Click(int) {
  PlotIndex = Int16(SelectedOption(frmOutput->Option10) + 1);
  DrawTotalCatch();
}

void frmOutput_Option12_Click(int) {
  AllowBands(5, frmOutput->cmdPlot12, frmOutput->Option12);
  DrawAverageF();
}

void frmOutput_Option13_Click(int) {
  EnableSelectivityList();
  frmOutput_cboPlot13_Click(0);
}

void frmOutput_Option23_Click(int) { DrawEndNumbers(); }
void frmOutput_Option25_Click(int) { DrawFRatio(); }
void frmOutput_Option26_Click(int) { DrawBiomassRatio(); }
void frmOutput_Option27_Click(int) { DrawCpueIndex(); }

// --- "Update Plot"

void frmOutput_cmdPlot6_Click(int) { DrawBiomassTotals(); }
void frmOutput_cmdPlot9_Click(int) { DrawRecruits(); }
void frmOutput_cmdPlot11_Click(int) { DrawSurplusProduction(); }
void frmOutput_cmdPlot12_Click(int) { DrawAverageF(); }
void frmOutput_cmdPlot23_Click(int) { DrawEndNumbers(); }
void frmOutput_cmdPlot25_Click(int) { DrawFRatio(); }
void frmOutput_cmdPlot26_Click(int) { DrawBiomassRatio(); }

// --- frmSTD

void frmSTD_cmdPlot19_Click(int) { DrawStdRecruitDevs(); }
void frmSTD_cmdPlot20_Click(int) { DrawStdFDevs(); }

}  // namespace tarnvik
