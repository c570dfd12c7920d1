#include "plots/input_lists.h"

#include <string>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/gridtools.h"
#include "inputedit/labels.h"
#include "plots/frmplotinput.h"
#include "plots/input_draws.h"
#include "plots/plot_parts.h"

namespace tarnvik {

namespace {

void DrawChoice(Chart& chart, const ComboBox& list, void (*draw)()) {
  chart.ClearData();
  PlotIndex = Int16(list.ListIndex() + 1);
  draw();
}

// The first entry, or none of an empty list: the click draws, or leaves the chart cleared.
void ChooseFirst(ComboBox& list) { list.SetListIndex(list.ListCount() > 0 ? 0 : -1); }

// The years of a grid's rows.
void FillYears(ComboBox& list, const Grid& grid) {
  list.Clear();
  for (int row = 1; row < grid.Rows(); ++row) list.AddItem(grid.TextMatrix(row, 0));
  ChooseFirst(list);
}

void FillSurveys(ComboBox& list) {
  list.Clear();
  for (int survey = 1; survey <= NIndex; ++survey) list.AddItem(SurveyLabel(survey));
  ChooseFirst(list);
}

void ClearSeriesSelection() {
  for (std::int16_t& series : PlotSeriesSel) series = 0;
}

std::string PeriodItem(int period) {
  const Grid& periods = frmInput->ORVFlexGrid(kGridPeriods);
  return "Select. Period " + NumberText(period) + ": " + periods.TextMatrix(period, 1) + "-" +
         periods.TextMatrix(period, 2);
}

}  // namespace

void frmPlotInput_cboPlot2_Click(int) {
  DrawChoice(frmPlotInput->Chart2, frmPlotInput->cboPlot2, input_plots::DrawFisheryAge);
}

void frmPlotInput_cboPlot4a_Click(int) {
  frmPlotInput->Chart4.ClearData();
  PlotSeriesSel[1] = Int16(frmPlotInput->cboPlot4a.ListIndex() + 1);
  input_plots::FillSurveyAgeYears();
}

void frmPlotInput_cboPlot4b_Click(int) {
  PlotSeriesSel[1] = Int16(frmPlotInput->cboPlot4a.ListIndex() + 1);
  DrawChoice(frmPlotInput->Chart4, frmPlotInput->cboPlot4b, input_plots::DrawSurveyAge);
}

void frmPlotInput_cboPlot5_Click(int) {
  DrawChoice(frmPlotInput->Chart5, frmPlotInput->cboPlot5, input_plots::DrawSurveyIndex);
}

void frmPlotInput_cboPlot6_Click(int) {
  DrawChoice(frmPlotInput->Chart6, frmPlotInput->cboPlot6, input_plots::DrawCatchWeight);
}

void frmPlotInput_cboPlot7_Click(int) {
  DrawChoice(frmPlotInput->Chart7, frmPlotInput->cboPlot7, input_plots::DrawStockWeight);
}

void frmPlotInput_cboPlot8_Click(int) {
  DrawChoice(frmPlotInput->Chart8, frmPlotInput->cboPlot8, input_plots::DrawMaturity);
}

void frmPlotInput_cboPlot11_Click(int) {
  DrawChoice(frmPlotInput->Chart11, frmPlotInput->cboPlot11, input_plots::DrawSpawningWeight);
}

void frmPlotInput_cboPlot12_Click(int) {
  DrawChoice(frmPlotInput->Chart12, frmPlotInput->cboPlot12, input_plots::DrawFisherySelectivity);
}

void frmPlotInput_cboPlot13_Click(int) {
  DrawChoice(frmPlotInput->Chart13, frmPlotInput->cboPlot13, input_plots::DrawSurveySelectivity);
}

namespace input_plots {

void FillFisheryAgeYears() {
  DrawSilently([] {
    if (frmInput->cmdCondenseGrd(kToolFisheryAge).Enabled()) CondenseGrid(kToolFisheryAge);
    FillYears(frmPlotInput->cboPlot2, frmInput->ORVFlexGrid(kGridFisheryAge));
  });
}

void FillSurveyAgeCombos() {
  DrawSilently([] {
    ClearSeriesSelection();
    PlotIndex = 0;
    FillSurveys(frmPlotInput->cboPlot4a);
  });
}

void FillSurveyAgeYears() {
  DrawSilently([] {
    ComboBox& years = frmPlotInput->cboPlot4b;
    const int survey = frmPlotInput->cboPlot4a.ListIndex() + 1;
    years.Clear();
    if (survey > 0) years.FillNumbers(SurvFYear(survey), SurvXYear(survey));
    ChooseFirst(years);
  });
}

void FillSurveyIndexCombo() {
  DrawSilently([] { FillSurveys(frmPlotInput->cboPlot5); });
}

void FillCatchWeightYears() {
  DrawSilently([] { FillYears(frmPlotInput->cboPlot6, frmInput->ORVFlexGrid(kGridCatchWeight)); });
}

void FillStockWeightYears() {
  DrawSilently([] { FillYears(frmPlotInput->cboPlot7, frmInput->ORVFlexGrid(kGridStockWeight)); });
}

void FillMaturityYears() {
  DrawSilently([] { FillYears(frmPlotInput->cboPlot8, frmInput->ORVFlexGrid(kGridMaturity)); });
}

void FillSpawningWeightYears() {
  DrawSilently([] { FillYears(frmPlotInput->cboPlot11, frmInput->ORVFlexGrid(kGridSpawnWeight)); });
}

void FillFisherySelectivityCombo() {
  DrawSilently([] {
    PlotInputForm& form = *frmPlotInput;
    ComboBox& list = form.cboPlot12;
    list.Clear();
    if (frmPin->frmNonParFishSel1.Visible()) {
      for (int period = 1; period < frmInput->ORVFlexGrid(kGridPeriods).Rows(); ++period) {
        list.AddItem(PeriodItem(period));
      }
      form.frmPlot12.SetCaption("Select a Period to Plot");
    } else if (frmPin->frmNonParFishSel2.Visible()) {
      list.FillNumbers(NFYear, NFYear + NYears - 1);
      form.frmPlot12.SetCaption("Select a Year to Plot");
    }
    ClearSeriesSelection();
    ChooseFirst(list);
  });
}

void FillSurveySelectivityCombo() {
  DrawSilently([] { FillSurveys(frmPlotInput->cboPlot13); });
}

}  // namespace input_plots

}  // namespace tarnvik
