// frmInput "Input Data": the state record of a case's data and settings.
//
// Its fields and grid cells are the working data: readers fill them; writers, validators and plots read them.
#pragma once

#include "platform/form.h"
#include "platform/grid.h"
#include "platform/lists.h"

namespace tarnvik {

// Pages of SSTab1; validation selects them by these numbers.
enum InputTab : int {
  kTabGeneral,
  kTabFisheryAge,
  kTabCpue,
  kTabFisherySelectivity,
  kTabFisheryOptions,
  kTabSurveyData,
  kTabSurveySelectivity,
  kTabSurveyOptions,
  kTabCatch,
  kTabStockWeight,
  kTabSpawnWeight,
  kTabMaturity,
  kTabFittingOptions
};

// Grids of ORVFlexGrid; there is no grid 2. How each is shaped stands in grids.cpp.
enum InputGrid : int {
  kGridCatch = 0,        // catch biomass by year
  kGridFisheryAge = 1,   // fit flag, sample size and composition by year
  kGridSurveyZ = 3,      // share of Z before each survey
  kGridStockWeight = 4,  // by year and age, like 6, 7 and 14
  kGridCpue = 5,         // value and fit flag by year
  kGridCatchWeight = 6,
  kGridMaturity = 7,
  kGridPeriods = 8,          // start and end years of the selectivity periods
  kGridSurveyEmphasis = 9,   // of age composition and index, by survey
  kGridIndexAges = 10,       // y or n by age and survey
  kGridFisherySelAges = 11,  // number of ages with a parameter, by period
  kGridSurveySelAges = 12,   // the same, by survey
  kGridMMultiplier = 13,     // multiplier of M by age
  kGridSpawnWeight = 14,
  kGridSurveyAge = 15,    // of the survey selected: sample size, fit flag, composition by year
  kGridSurveyIndex = 16,  // of the survey selected: value and fit flag by year
};

// Items of chkEstimate, lblEstimate and txtEstimate, which three pages share.
enum OptionItem : int {
  kItemMCv = 0,
  kItemM = 1,
  kItemSurveyQ = 2,
  kItemSurveyExponent = 3,
  kItemFisherySample = 4,
  kItemInitialF = 5,  // initial equilibrium catch
  kItemCriteria = 6,  // status determination criteria: 12 to 15
  kItemCpueQ = 10,
  kItemCpueExponent = 11,
  kItemTargetF = 12,
  kItemLimitF = 13,
  kItemTargetSsb = 14,
  kItemLimitSsb = 15,
};

// Likelihood emphasis factors: lblLikelihood, txtLikelihood.
enum EmphasisItem : int {
  kEmphasisCpue = 0,
  kEmphasisRecruitment = 1,
  kEmphasisFisheryAge = 2,
  kEmphasisCatch = 3,
  kEmphasisSelectivity = 4,
  kEmphasisF = 5,
};

// Coefficients of variation: lblVarCoeff, txtVarCoeff.
enum CvItem : int {
  kCvRecruitment = 1,
  kCvCatch = 2,
  kCvF = 3,
};

// Labels of lblFile.
enum CaseFileLabel : int { kFilePin, kFileDat };
// Buttons of cmdCondenseGrd, cmdExpandGrd and cmdFillBlanks, by the grid that they work on.
enum GridTool : int { kToolCpue, kToolFisheryAge, kToolSurveyAge };
// Parameters of a selectivity curve: chkSurvSelParEst and its fields.
enum CurveParameter : int { kLogGamma, kLogBeta, kLogA50 };
// Options: opBoot; opCPUEtype; opFSelModel, opSurvSelModel; opFishSelParametric, opSurvSelParametric;
// opFishSelNonPar.
enum RunMode : int { kSingleRun, kBootstrap };
enum CpueType : int { kCpueWeight, kCpueNumbers };
enum SelectivityModel : int { kParametric, kNonparametric };
enum SelectivityCurve : int { kFlatTopped, kThreeParameters };
enum SelectivitySpan : int { kByPeriod, kAnnual };

struct InputForm : Form {
  InputForm();
  void Load() override;                                      // frmInput_Form_Load
  void QueryUnload(bool& cancel, UnloadMode mode) override;  // frmInput_Form_QueryUnload
  bool CodeClicksRest() const override;                      // while LoadingForm is set

  TabStrip SSTab1{this, "SSTab1"};

  // General
  Label Title{this, "Title"};
  Frame Frame1{this, "Frame1"};
  Label lblCTL{this, "lblCTL"};  // control file, "None Selected" in red when there is none
  CommandButton cmdBrowseCTL{this, "cmdBrowseCTL"};
  ControlArray<Label> lblFile{this, "lblFile", {0, 1}};
  CommandButton cmdBrowse1{this, "cmdBrowse1"};  // opens a parameter file
  CommandButton cmdBrowse2{this, "cmdBrowse2"};  // opens a data file
  TextBox txtModel{this, "txtModel"};
  Frame Frame2{this, "Frame2"};
  ComboBox cmbNFYear{this, "cmbNFYear"};
  ComboBox cmbNXYear{this, "cmbNXYear"};
  ComboBox cmbRecYr{this, "cmbRecYr"};
  ComboBox cmbRefYr{this, "cmbRefYr"};
  ComboBox cmbNAges{this, "cmbNAges"};
  ComboBox cmbNIndex{this, "cmbNIndex"};
  ComboBox cmbSelPer{this, "cmbSelPer"};
  Frame Frame26{this, "Frame26"};
  ControlArray<OptionButton> opBoot{this, "opBoot", {0, 1}};
  Label lblNBoot{this, "lblNBoot"};
  TextBox txtNBoot{this, "txtNBoot"};
  Label lblBootSeed{this, "lblBootSeed"};
  TextBox txtBootSeed{this, "txtBootSeed"};

  ControlArray<Grid> ORVFlexGrid{
      this, "ORVFlexGrid", {0, 1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}};
  ControlArray<CommandButton> cmdCondenseGrd{this, "cmdCondenseGrd", {0, 1}};
  ControlArray<CommandButton> cmdExpandGrd{this, "cmdExpandGrd", {0, 1}};
  ControlArray<CommandButton> cmdFillBlanks{this, "cmdFillBlanks", {0, 1, 2}};

  // Fishery Age Data
  Frame Frame5{this, "Frame5"};

  // Fishery CPUE
  Frame Frame14{this, "Frame14"};
  CheckBox chkFitFishCPUE{this, "chkFitFishCPUE"};
  ListBox lstCPUEages{this, "lstCPUEages"};
  TextBox txtZCpue{this, "txtZCpue"};
  Frame Frame27{this, "Frame27"};
  ControlArray<OptionButton> opCPUEtype{this, "opCPUEtype", {0, 1}};

  // Fishery Selectivity
  Frame Frame3{this, "Frame3"};
  // The count of ages of the annual option; lies over ORVFlexGrid(11), and one of the two is visible.
  TextBox txtFishSelAge{this, "txtFishSelAge"};
  ControlArray<OptionButton> opFSelModel{this, "opFSelModel", {0, 1}};
  Frame frmFishSelParModel{this, "frmFishSelParModel"};
  ControlArray<OptionButton> opFishSelParametric{this, "opFishSelParametric", {0, 1}};
  Frame frmFishSelParEst{this, "frmFishSelParEst"};
  CheckBox chkEstimateFishGamma{this, "chkEstimateFishGamma"};
  Label lblPhaseFishGamma{this, "lblPhaseFishGamma"};
  TextBox txtPhaseFishGamma{this, "txtPhaseFishGamma"};
  CheckBox chkEstimateFishBeta{this, "chkEstimateFishBeta"};
  Label lblPhaseFishBeta{this, "lblPhaseFishBeta"};
  TextBox txtPhaseFishBeta{this, "txtPhaseFishBeta"};
  CheckBox chkEstimateFishA50{this, "chkEstimateFishA50"};
  Label lblPhaseFishA50{this, "lblPhaseFishA50"};
  TextBox txtPhaseFishA50{this, "txtPhaseFishA50"};
  Frame frmFishSelNonPar{this, "frmFishSelNonPar"};
  ControlArray<OptionButton> opFishSelNonPar{this, "opFishSelNonPar", {0, 1}};
  Frame frmFishSelNonParEst{this, "frmFishSelNonParEst"};
  CheckBox chkFishSelNonParEst{this, "chkFishSelNonParEst"};
  Label lblPhaseFSelNonPar{this, "lblPhaseFSelNonPar"};
  TextBox txtPhaseFSelNonPar{this, "txtPhaseFSelNonPar"};

  // Fishery Options, Survey Options and Fitting Options share the arrays of OptionItem.
  Frame Frame18{this, "Frame18"};
  ControlArray<CheckBox> chkEstimate{this, "chkEstimate", {1, 2, 3, 4, 5, 6, 10, 11}};
  ControlArray<Label> lblEstimate{this, "lblEstimate", {0, 1, 2, 3, 4, 5, 10, 11, 12, 13, 14, 15}};
  ControlArray<TextBox> txtEstimate{this, "txtEstimate", {0, 1, 2, 3, 4, 5, 10, 11, 12, 13, 14, 15}};
  Frame Frame19{this, "Frame19"};
  ControlArray<Label> lblLikelihood{this, "lblLikelihood", {0, 1, 2, 3, 4, 5}};
  ControlArray<TextBox> txtLikelihood{this, "txtLikelihood", {0, 1, 2, 3, 4, 5}};
  Frame Frame20{this, "Frame20"};
  ControlArray<CheckBox> chkSmooth{this, "chkSmooth", {0, 1, 2}};  // 1st, 2nd, 3rd difference

  // Survey Data
  Frame Frame29{this, "Frame29"};
  ComboBox cmbiSurv{this, "cmbiSurv"};
  Frame frmSurvInfo{this, "frmSurvInfo"};
  Label lblSurvTitle{this, "lblSurvTitle"};
  ComboBox cmbSurvFYear{this, "cmbSurvFYear"};
  ComboBox cmbSurvXYear{this, "cmbSurvXYear"};
  Frame Frame28{this, "Frame28"};
  CheckBox chkSurvFit{this, "chkSurvFit"};
  Frame Frame30{this, "Frame30"};

  // Survey Selectivity
  Frame Frame22{this, "Frame22"};
  ControlArray<OptionButton> opSurvSelModel{this, "opSurvSelModel", {0, 1}};
  Frame frmSurvSelModel{this, "frmSurvSelModel"};
  ControlArray<OptionButton> opSurvSelParametric{this, "opSurvSelParametric", {0, 1}};
  Frame frmSurvSelEstPar{this, "frmSurvSelEstPar"};
  ControlArray<CheckBox> chkSurvSelParEst{this, "chkSurvSelParEst", {0, 1, 2}};
  ControlArray<Label> lblSurvSelParEst{this, "lblSurvSelParEst", {0, 1, 2}};
  ControlArray<TextBox> txtSurvSelParEst{this, "txtSurvSelParEst", {0, 1, 2}};
  Frame Frame7{this, "Frame7"};
  CheckBox chkSurvSelNonParEst{this, "chkSurvSelNonParEst"};
  Label lblSurvSelNonParEst{this, "lblSurvSelNonParEst"};
  TextBox txtSurvSelNonParEst{this, "txtSurvSelNonParEst"};
  Frame Frame21{this, "Frame21"};

  // Survey Options
  Frame Frame15{this, "Frame15"};
  Frame Frame6{this, "Frame6"};
  Frame Frame16{this, "Frame16"};
  ListBox listSurvFit{this, "listSurvFit"};        // marked: the index is in numbers
  ListBox listSurvSample{this, "listSurvSample"};  // marked: estimate the effective sample size
  Label lblEstSurvSample{this, "lblEstSurvSample"};
  TextBox txtEstSurvSample{this, "txtEstSurvSample"};

  // Catch, Stock Weight, Spawn Weight, Maturity
  Frame Frame4{this, "Frame4"};
  Frame Frame8{this, "Frame8"};
  Frame Frame12{this, "Frame12"};
  Frame Frame24{this, "Frame24"};
  TextBox txtFractionZ{this, "txtFractionZ"};
  Frame Frame9{this, "Frame9"};

  // Fitting Options
  Frame Frame13{this, "Frame13"};
  ComboBox cmbMType{this, "cmbMType"};  // prior of M: lognormal, normal, gamma
  CheckBox chkEstimateLogRec{this, "chkEstimateLogRec"};
  Label lblPhaseLogRec{this, "lblPhaseLogRec"};
  TextBox txtPhaseLogRec{this, "txtPhaseLogRec"};
  CheckBox chkEstimateRecDev{this, "chkEstimateRecDev"};
  Label lblPhaseRecDev{this, "lblPhaseRecDev"};
  TextBox txtPhaseRecDev{this, "txtPhaseRecDev"};
  CheckBox chkEstimateFMort{this, "chkEstimateFMort"};
  Label lblPhaseFMort{this, "lblPhaseFMort"};
  TextBox txtPhaseFMort{this, "txtPhaseFMort"};
  CheckBox chkEstimateFMortDev{this, "chkEstimateFMortDev"};
  Label lblPhaseFMortDev{this, "lblPhaseFMortDev"};
  TextBox txtPhaseFMortDev{this, "txtPhaseFMortDev"};
  Frame Frame23{this, "Frame23"};
  Frame Frame10{this, "Frame10"};
  Frame Frame17{this, "Frame17"};
  ControlArray<Label> lblVarCoeff{this, "lblVarCoeff", {1, 2, 3}};
  ControlArray<TextBox> txtVarCoeff{this, "txtVarCoeff", {1, 2, 3}};
  Frame Frame11{this, "Frame11"};
  TextBox txtEpsilon{this, "txtEpsilon"};
  Frame Frame25{this, "Frame25"};
  CheckBox chkShrink{this, "chkShrink"};
  Label lblShrink{this, "lblShrink"};
  TextBox txtShrink{this, "txtShrink"};
  Label lblShrinkFactor{this, "lblShrinkFactor"};
  TextBox txtShrinkFactor{this, "txtShrinkFactor"};

 private:
  void Design();        // captions, tips, pages, containers and first values of the empty form
  void BindHandlers();  // which procedure each event of a control runs
};

inline FormOf<InputForm> frmInput{"frmInput"};

// Sets LoadingForm until the end of the block, which clears it whatever happens: clicks made by code rest.
class FormLoading {
 public:
  FormLoading();
  ~FormLoading();
  FormLoading(const FormLoading&) = delete;
  FormLoading& operator=(const FormLoading&) = delete;
};

// The empty form for the general parameter ranges: clears the dimensions, fills the lists of the General tab,
// commits what they show, sizes the per-survey store and all grids, those of frmPin included, which is
// loaded. Sets InputValid false. Clicks by code rest meanwhile; LoadingForm is false at the end, also when an
// error passes through.
void frmInput_Form_Load();

// Asks whether the files shall be saved, unless code closes the form or ExitPrompt is off; then resets what
// belongs to the case. Cancels on Cancel and when what shall be saved does not validate.
void frmInput_Form_QueryUnload(bool& cancel, UnloadMode mode);

// Open a control file, a parameter file, a data file, as the flows over the files do.
void frmInput_cmdBrowseCTL_Click(int);
void frmInput_cmdBrowse1_Click(int);
void frmInput_cmdBrowse2_Click(int);

// Shows a path in one of the three file labels: blue, or "None Selected" in red for "" and "None Selected".
void ShowPath(Label& label, const std::string& path);

}  // namespace tarnvik
