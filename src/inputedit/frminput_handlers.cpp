// Which procedure each event of frmInput runs.

#include "inputedit/dimensions.h"
#include "inputedit/frminput.h"
#include "inputedit/gridtools.h"
#include "inputedit/options.h"
#include "inputedit/surveys.h"

namespace tarnvik {

void InputForm::BindHandlers() {
  const struct {
    Control& control;
    Handler click;
  } clicks[] = {
      {cmdBrowseCTL, frmInput_cmdBrowseCTL_Click},
      {cmdBrowse1, frmInput_cmdBrowse1_Click},
      {cmdBrowse2, frmInput_cmdBrowse2_Click},
      {cmbNFYear, frmInput_cmbNFYear_Click},
      {cmbNXYear, frmInput_cmbNXYear_Click},
      {cmbRecYr, frmInput_cmbRecYr_Click},
      {cmbNAges, frmInput_cmbNAges_Click},
      {cmbNIndex, frmInput_cmbNIndex_Click},
      {cmbSelPer, frmInput_cmbSelPer_Click},
      {cmbiSurv, frmInput_cmbiSurv_Click},
      {cmbSurvFYear, frmInput_cmbSurvFYear_Click},
      {cmbSurvXYear, frmInput_cmbSurvXYear_Click},
      {lblSurvTitle, frmInput_lblSurvTitle_Click},
      {chkSurvFit, frmInput_chkSurvFit_Click},
      {chkFitFishCPUE, frmInput_chkFitFishCPUE_Click},
      {chkEstimateFishGamma, frmInput_chkEstimateFishGamma_Click},
      {chkEstimateFishBeta, frmInput_chkEstimateFishBeta_Click},
      {chkEstimateFishA50, frmInput_chkEstimateFishA50_Click},
      {chkFishSelNonParEst, frmInput_chkFishSelNonParEst_Click},
      {chkSurvSelNonParEst, frmInput_chkSurvSelNonParEst_Click},
      {listSurvSample, frmInput_listSurvSample_Click},
      {chkEstimateLogRec, frmInput_chkEstimateLogRec_Click},
      {chkEstimateRecDev, frmInput_chkEstimateRecDev_Click},
      {chkEstimateFMort, frmInput_chkEstimateFMort_Click},
      {chkEstimateFMortDev, frmInput_chkEstimateFMortDev_Click},
      {chkShrink, frmInput_chkShrink_Click},
  };
  for (const auto& row : clicks) row.control.OnClick = row.click;

  opBoot.SetHandler(&Control::OnClick, frmInput_opBoot_Click);
  opFSelModel.SetHandler(&Control::OnClick, frmInput_opFSelModel_Click);
  opFishSelParametric.SetHandler(&Control::OnClick, frmInput_opFishSelParametric_Click);
  opFishSelNonPar.SetHandler(&Control::OnClick, frmInput_opFishSelNonPar_Click);
  opSurvSelModel.SetHandler(&Control::OnClick, frmInput_opSurvSelModel_Click);
  opSurvSelParametric.SetHandler(&Control::OnClick, frmInput_opSurvSelParametric_Click);
  chkEstimate.SetHandler(&Control::OnClick, frmInput_chkEstimate_Click);
  chkSurvSelParEst.SetHandler(&Control::OnClick, frmInput_chkSurvSelParEst_Click);
  cmdCondenseGrd.SetHandler(&Control::OnClick, frmInput_cmdCondenseGrd_Click);
  cmdExpandGrd.SetHandler(&Control::OnClick, frmInput_cmdExpandGrd_Click);
  cmdFillBlanks.SetHandler(&Control::OnClick, frmInput_cmdFillBlanks_Click);
  ORVFlexGrid.SetHandler(&Grid::OnBeginEdit, frmInput_ORVFlexGrid_event9);
  ORVFlexGrid.SetHandler(&Grid::OnEndEdit, frmInput_ORVFlexGrid_event1);
  txtFishSelAge.OnLostFocus = frmInput_txtFishSelAge_LostFocus;
}

}  // namespace tarnvik
