// frmPin "Input Parameter Values": the state record of the initial parameter values.
#pragma once

#include "platform/form.h"
#include "platform/grid.h"

namespace tarnvik {

// Grids of ORVFlexGrid1.
enum PinGrid : int {
  kPinRecDevs = 0,          // recruitment deviations by year
  kPinFDevs = 1,            // fishing mortality deviations by year
  kPinFisheryCurve = 2,     // log gamma, log beta, log a50 by period
  kPinSurveyIndex = 3,      // q and exponent by survey
  kPinFisheryByPeriod = 4,  // log selectivity by period and age
  kPinSurveyCurve = 5,      // log gamma, log beta, log a50 by survey
  kPinSurveyByAge = 6,      // log selectivity by survey and age
  kPinFisheryAnnual = 7,    // log selectivity by year and age
};

// Fields of txtParmFile.
enum PinParameter : int {
  kParmM = 0,
  kParmLogRec = 1,  // log of mean recruitment
  kParmLogF = 2,    // log of mean fishing mortality
  kParmCpueQ = 3,
  kParmCpueExponent = 4,
};

struct PinForm : Form {
  PinForm();
  void Load() override;                                      // frmPin_Form_Load
  void Activate() override;                                  // frmPin_Form_Activate
  void QueryUnload(bool& cancel, UnloadMode mode) override;  // frmPin_Form_QueryUnload
  bool CodeClicksRest() const override;                      // while LoadingForm is set

  TabStrip SSTab1{this, "SSTab1"};  // biological, fishery, survey
  ControlArray<Label> Label1{this, "Label1", {0, 1, 2, 3, 4, 5, 6}};
  ControlArray<TextBox> txtParmFile{this, "txtParmFile", {0, 1, 2, 3, 4}};
  ControlArray<Grid> ORVFlexGrid1{this, "ORVFlexGrid1", {0, 1, 2, 3, 4, 5, 6, 7}};
  Frame Frame3{this, "Frame3"};                // survey index parameters
  Frame frmParFishSel{this, "frmParFishSel"};  // the next three share one place, one of them is visible
  Frame frmNonParFishSel1{this, "frmNonParFishSel1"};
  Frame frmNonParFishSel2{this, "frmNonParFishSel2"};
  Frame frmParSurvSel{this, "frmParSurvSel"};  // and so do these two
  Frame frmNonParSurvSel{this, "frmNonParSurvSel"};

 private:
  void Design();
};

inline FormOf<PinForm> frmPin{"frmPin"};

// Shows the first page and the frames of the selectivity options. Loads frmInput when it is not loaded. The
// grids of a fresh record have no size yet: the flows shape them.
void frmPin_Form_Load();
// Repaints the three grids of nonparametric selectivity; shows the warnings of counts that are out of range.
void frmPin_Form_Activate();
// The question of frmInput's closing, for the parameter file alone; then resets what belongs to that file.
void frmPin_Form_QueryUnload(bool& cancel, UnloadMode mode);

}  // namespace tarnvik
