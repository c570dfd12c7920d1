#include "inputedit/frmpin.h"

#include "core/globals.h"
#include "inputedit/options.h"
#include "inputedit/selectivity_paint.h"

namespace tarnvik {

namespace {

enum PinTab : int { kTabBiological, kTabFishery, kTabSurvey };

}  // namespace

PinForm::PinForm() : Form("frmPin", "Input Parameter Values") { Design(); }

bool PinForm::CodeClicksRest() const { return LoadingForm == kTrue; }

void PinForm::QueryUnload(bool& cancel, UnloadMode mode) { frmPin_Form_QueryUnload(cancel, mode); }

void PinForm::Design() {
  SSTab1.SetPages({"Initial Parameter Values - Biological", "Initial Parameter Values - Fishery",
                   "Initial Parameter Values - Survey"});

  // On the page itself: a label and what it describes.
  const struct {
    int page;
    Label& label;
    Control& field;
    const char* caption;
  } labelled[] = {
      {kTabBiological, Label1(0), txtParmFile(kParmM), "Natural Mortality"},
      {kTabBiological, Label1(1), txtParmFile(kParmLogRec), "Log of Mean Recruitment (1000s of Fish)"},
      {kTabBiological, Label1(2), ORVFlexGrid1(kPinRecDevs), "Recruitment Deviations"},
      {kTabBiological, Label1(3), txtParmFile(kParmLogF), "Log of Mean Fishing Annual Mortality"},
      {kTabBiological, Label1(4), ORVFlexGrid1(kPinFDevs), "Fishing Mortality Deviations"},
      {kTabFishery, Label1(5), txtParmFile(kParmCpueQ), "Fishery CPUE q"},
      {kTabFishery, Label1(6), txtParmFile(kParmCpueExponent), "Fishery CPUE exponent"},
  };
  for (const auto& row : labelled) {
    for (Control* control : {static_cast<Control*>(&row.label), &row.field}) {
      control->SetContainer(&SSTab1, row.page);
      control->SetCaption(row.caption);
    }
  }

  // A frame with one grid. The three of the fishery share one place, and so do the two of the surveys: which
  // one shows follows the selectivity options, parametric at first.
  const struct {
    int page;
    Frame& frame;
    int grid;
    bool shown;
    const char* caption;
  } framed[] = {
      {kTabFishery, frmParFishSel, 2, true, "Parametric Fishery Selectivity Parameters"},
      {kTabFishery, frmNonParFishSel1, 4, false, "Log of Nonparametric Fishery Selectivity Parameters"},
      {kTabFishery, frmNonParFishSel2, 7, false,
       "Log of Annual Nonparametric Fishery Selectivity Parameters"},
      {kTabSurvey, Frame3, 3, true, "Survey Index Parameters"},
      {kTabSurvey, frmParSurvSel, 5, true, "Parametric Survey Selectivity Parameters"},
      {kTabSurvey, frmNonParSurvSel, 6, false, "Log of Nonparametric Survey Selectivity Parameters"},
  };
  for (const auto& row : framed) {
    row.frame.SetContainer(&SSTab1, row.page);
    row.frame.SetCaption(row.caption);
    row.frame.SetVisible(row.shown);
    ORVFlexGrid1(row.grid).SetContainer(&row.frame);
    ORVFlexGrid1(row.grid).SetCaption(row.caption);
  }
  ORVFlexGrid1.ForEach([](Grid& grid) { grid.Editable = true; });
}

void frmPin_Form_Load() {
  frmPin->SSTab1.SetTab(kTabBiological);
  ApplyFishSelModel();
  ApplySurvSelModel();
}

void frmPin_Form_Activate() {
  PaintFishPeriodGrid();
  PaintFishAnnualGrid();
  PaintSurvGrid();
}

void PinForm::Load() { frmPin_Form_Load(); }

void PinForm::Activate() { frmPin_Form_Activate(); }

}  // namespace tarnvik
