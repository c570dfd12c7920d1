#include "plots/input_plots.h"

#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "platform/host.h"
#include "plots/frmplotinput.h"
#include "plots/input_draws.h"
#include "plots/input_lists.h"
#include "plots/m_prior.h"

namespace tarnvik {

namespace {

// Enables a page and draws it, or disables it.
void OfferPage(InputPlotTab page, bool offered, void (*draw)()) {
  frmPlotInput->SSTab1.SetTabEnabled(page, offered);
  if (offered) draw();
}

}  // namespace

void RefreshInputPlots() {
  if (DatFileOpen != kTrue || PinFileOpen != kTrue) return;
  TheHost().ProcessEvents();

  using namespace input_plots;
  // The deviations of recruitment come behind maturity, whose note they use as well.
  DrawCatchBiomass();
  FillFisheryAgeYears();
  DrawFisheryCpue();
  FillSurveyAgeCombos();
  FillSurveyIndexCombo();
  FillCatchWeightYears();
  FillStockWeightYears();
  FillMaturityYears();
  DrawRecruitmentDeviations();
  DrawFishingMortalityDeviations();
  FillSpawningWeightYears();

  OfferPage(kInputFisherySelectivity, !frmPin->frmParFishSel.Visible(), FillFisherySelectivityCombo);
  OfferPage(kInputSurveySelectivity, !frmPin->frmParSurvSel.Visible(), FillSurveySelectivityCombo);
  OfferPage(kInputM, frmInput->chkEstimate(kItemM).IsChecked(), DrawMPrior);
}

}  // namespace tarnvik
