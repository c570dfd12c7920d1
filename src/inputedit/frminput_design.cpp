// The empty form: where each control of frmInput lies, what stands on it or beside it, and its first value.

#include <initializer_list>

#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputedit/options.h"

namespace tarnvik {

namespace {

// The caption of a text box, combo box, list or grid is the text beside it.
struct Item {
  Control& control;
  const char* caption;
  const char* tip = "";
};

void Put(Control& container, int page, std::initializer_list<Item> items) {
  for (const Item& item : items) {
    item.control.SetContainer(&container, page);
    item.control.SetCaption(item.caption);
    item.control.SetTip(item.tip);
  }
}

void Put(Frame& frame, std::initializer_list<Item> items) { Put(frame, 0, items); }

// A box lies beside its label and is described by it.
void PutBeside(const Label& label, TextBox& box) {
  box.SetContainer(label.Container(), label.Page());
  box.SetCaption(label.Caption());
}

constexpr const char* kPhase = "Start at Phase:";
constexpr const char* kBrowse = "Browse";
constexpr const char* kCondense = "Condense Grid";
constexpr const char* kExpand = "Expand Grid";
constexpr const char* kFillBlanks = "Fill Blanks With No Data Values";
constexpr const char* kCondenseTip = "Removes the years without data at both ends";
constexpr const char* kExpandTip = "Brings back all years";

void PlaceGeneral(InputForm& f) {
  Put(f.SSTab1, kTabGeneral,
      {{f.Title, "Statistical Catch-at-Age Model"},
       {f.Frame1, ""},
       {f.Frame2, "General Parameters"},
       {f.Frame26, "Run Mode Selection"}});
  Put(f.Frame1, {{f.lblCTL, kNoneSelected, "Control File"},
                 {f.cmdBrowseCTL, kBrowse, "Opens a control file and the two files that it names"},
                 {f.lblFile(kFileDat), kNoneSelected, "Data File"},
                 {f.cmdBrowse2, kBrowse, "Opens a data file"},
                 {f.lblFile(kFilePin), kNoneSelected, "Parameter File"},
                 {f.cmdBrowse1, kBrowse, "Opens a parameter file"},
                 {f.txtModel, "Model Description"}});
  Put(f.Frame2, {{f.cmbNFYear, "Start Year"},
                 {f.cmbNXYear, "End Year"},
                 {f.cmbRecYr, "Recruitment Year"},
                 {f.cmbRefYr, "Reference Year"},
                 {f.cmbNAges, "Number of Ages"},
                 {f.cmbNIndex, "Number of Surveys"},
                 {f.cmbSelPer, "Number of Fishery Selectivity Periods"}});
  Put(f.Frame26, {{f.opBoot(kSingleRun), "Single Model Run"},
                  {f.opBoot(kBootstrap), "Bootstrapping"},
                  {f.lblNBoot, "Number of Bootstrap Repetitions"},
                  {f.lblBootSeed, "Random Number Seed"}});
}

void PlaceFisheryData(InputForm& f) {
  Put(f.SSTab1, kTabFisheryAge, {{f.Frame5, "Fishery Age Composition (Numbers or Proportion)"}});
  Put(f.Frame5, {{f.ORVFlexGrid(kGridFisheryAge), "Fishery Age Composition (Numbers or Proportion)"},
                 {f.cmdCondenseGrd(kToolFisheryAge), kCondense, kCondenseTip},
                 {f.cmdExpandGrd(kToolFisheryAge), kExpand, kExpandTip},
                 {f.cmdFillBlanks(kToolFisheryAge), kFillBlanks}});
  Put(f.SSTab1, kTabCpue,
      {{f.Frame14, "Observed Fishery CPUE"},
       {f.lstCPUEages, "Include Age in CPUE?"},
       {f.txtZCpue, "Fraction of Annual Total Mortality Prior to CPUE Index"},
       {f.Frame27, ""}});
  Put(f.Frame14, {{f.ORVFlexGrid(kGridCpue), "Observed Fishery CPUE"},
                  {f.chkFitFishCPUE, "Fit Fishery CPUE to Observed Data"},
                  {f.cmdCondenseGrd(kToolCpue), kCondense, kCondenseTip},
                  {f.cmdExpandGrd(kToolCpue), kExpand, kExpandTip},
                  {f.cmdFillBlanks(kToolCpue), kFillBlanks}});
  Put(f.Frame27, {{f.opCPUEtype(kCpueNumbers), "CPUE Index Is Numbers"},
                  {f.opCPUEtype(kCpueWeight), "CPUE Index Is Weight"}});
}

void PlaceFisherySelectivity(InputForm& f) {
  Put(f.SSTab1, kTabFisherySelectivity,
      {{f.ORVFlexGrid(kGridPeriods), "Fishery Selectivity Periods"},
       {f.ORVFlexGrid(kGridFisherySelAges), "Number of Age Groups to Estimate Fishery Selectivity"},
       {f.txtFishSelAge, "Number of Age Groups to Estimate Fishery Selectivity"},
       {f.Frame3, "Fishery Selectivity Model"}});
  Put(f.Frame3, {{f.opFSelModel(kParametric), "Use Parametric Model"},
                 {f.opFSelModel(kNonparametric), "Use Nonparametric Model"},
                 {f.frmFishSelParModel, "Parametric Model"},
                 {f.frmFishSelParEst, "Estimate Parameters"},
                 {f.frmFishSelNonPar, "Nonparametric Model"},
                 {f.frmFishSelNonParEst, "Estimate Parameters"}});
  Put(f.frmFishSelParModel, {{f.opFishSelParametric(kFlatTopped), "Use Flat-Topped Fishery Selectivity"},
                             {f.opFishSelParametric(kThreeParameters), "Use 3-Parameter Thompson Function"}});
  Put(f.frmFishSelParEst, {{f.chkEstimateFishGamma, "Estimate log gamma"},
                           {f.lblPhaseFishGamma, kPhase},
                           {f.chkEstimateFishBeta, "Estimate log beta"},
                           {f.lblPhaseFishBeta, kPhase},
                           {f.chkEstimateFishA50, "Estimate log a50"},
                           {f.lblPhaseFishA50, kPhase}});
  Put(f.frmFishSelNonPar, {{f.opFishSelNonPar(kByPeriod), "Use Fishery Selectivity by Period"},
                           {f.opFishSelNonPar(kAnnual), "Use Annual Fishery Selectivity"}});
  Put(f.frmFishSelNonParEst,
      {{f.chkFishSelNonParEst, "Estimate Nonparametric Selectivity"}, {f.lblPhaseFSelNonPar, kPhase}});
}

void PlaceFisheryOptions(InputForm& f) {
  Put(f.SSTab1, kTabFisheryOptions,
      {{f.Frame18, "Fishery Estimation Parameters"},
       {f.Frame19, "Likelihood Emphasis Factors"},
       {f.Frame20, "Apply Smoothing Function to Fishery Selectivity"}});
  Put(f.Frame18, {{f.chkEstimate(kItemFisherySample), "Estimate Effective Sample Size for Fishery"},
                  {f.lblEstimate(kItemFisherySample), kPhase},
                  {f.chkEstimate(kItemCpueQ), "Estimate CPUE q"},
                  {f.lblEstimate(kItemCpueQ), kPhase},
                  {f.chkEstimate(kItemCpueExponent), "Estimate CPUE exponent"},
                  {f.lblEstimate(kItemCpueExponent), kPhase}});
  Put(f.Frame19, {{f.lblLikelihood(kEmphasisCpue), "Fishery CPUE"},
                  {f.lblLikelihood(kEmphasisFisheryAge), "Fishery Age Composition"},
                  {f.lblLikelihood(kEmphasisSelectivity), "Fishery Selectivity"}});
  Put(f.Frame20, {{f.chkSmooth(0), "Apply to 1st Difference Between Age Groups"},
                  {f.chkSmooth(1), "Apply to 2nd Difference Between Age Groups"},
                  {f.chkSmooth(2), "Apply to 3rd Difference Between Age Groups"}});
}

void PlaceSurveyData(InputForm& f) {
  Put(f.SSTab1, kTabSurveyData,
      {{f.Frame29, "Select A Survey to Edit"},
       {f.frmSurvInfo, ""},
       {f.Frame28, "Survey Biomass Index"},
       {f.Frame30, "Survey Age Composition (Numbers or Porportion)"}});
  Put(f.Frame29, {{f.cmbiSurv, "Survey"}});
  Put(f.frmSurvInfo, {{f.lblSurvTitle, "", "Click to edit the title of the survey"},
                      {f.cmbSurvFYear, "Start Year"},
                      {f.cmbSurvXYear, "End Year"}});
  Put(f.Frame28,
      {{f.ORVFlexGrid(kGridSurveyIndex), "Survey Biomass Index"}, {f.chkSurvFit, "Fit Survey Index"}});
  Put(f.Frame30, {{f.ORVFlexGrid(kGridSurveyAge), "Survey Age Composition (Numbers or Porportion)"},
                  {f.cmdFillBlanks(kToolSurveyAge), kFillBlanks}});
}

void PlaceSurveySelectivity(InputForm& f) {
  Put(f.SSTab1, kTabSurveySelectivity,
      {{f.Frame22, "Survey Selectivity Model"},
       {f.Frame21, "Number of Age Groups to Estimate Survey Selectivity"}});
  Put(f.Frame22, {{f.opSurvSelModel(kParametric), "Use Parametric Model"},
                  {f.opSurvSelModel(kNonparametric), "Use Nonparametric Model"},
                  {f.frmSurvSelModel, "Parametric Model"},
                  {f.frmSurvSelEstPar, "Estimate Parameters"},
                  {f.Frame7, "Nonparametric Model"}});
  Put(f.frmSurvSelModel, {{f.opSurvSelParametric(kFlatTopped), "Use Flat-Topped Survey Selectivity"},
                          {f.opSurvSelParametric(kThreeParameters), "Use 3-Parameter Thompson Function"}});
  Put(f.frmSurvSelEstPar, {{f.chkSurvSelParEst(kLogGamma), "Estimate log gamma"},
                           {f.lblSurvSelParEst(kLogGamma), kPhase},
                           {f.chkSurvSelParEst(kLogBeta), "Estimate log beta"},
                           {f.lblSurvSelParEst(kLogBeta), kPhase},
                           {f.chkSurvSelParEst(kLogA50), "Estimate log a50"},
                           {f.lblSurvSelParEst(kLogA50), kPhase}});
  Put(f.Frame7,
      {{f.chkSurvSelNonParEst, "Estimate Nonparametric Selectivity"}, {f.lblSurvSelNonParEst, kPhase}});
  Put(f.Frame21,
      {{f.ORVFlexGrid(kGridSurveySelAges), "Number of Age Groups to Estimate Survey Selectivity"}});
}

void PlaceSurveyOptions(InputForm& f) {
  Put(f.SSTab1, kTabSurveyOptions,
      {{f.Frame15, "Include Age In Survey Index?   ( y = yes, n = no )"},
       {f.Frame6, "Fraction of Z Prior to Survey"},
       {f.Frame16, "Survey Fitting and Estimation Parameters"}});
  Put(f.Frame15, {{f.ORVFlexGrid(kGridIndexAges), "Include Age In Survey Index?   ( y = yes, n = no )"}});
  Put(f.Frame6, {{f.ORVFlexGrid(kGridSurveyZ), "Fraction of Z Prior to Survey"}});
  Put(f.Frame16, {{f.ORVFlexGrid(kGridSurveyEmphasis), "Likelihood Emphasis Factors"},
                  {f.listSurvFit, "Survey Index is Numbers? (Otherwise: Weight, kg/tow*1000)"},
                  {f.listSurvSample, "Estimate Effective Sample Size for Surveys?"},
                  {f.lblEstSurvSample, kPhase},
                  {f.chkEstimate(kItemSurveyQ), "Estimate Survey q"},
                  {f.lblEstimate(kItemSurveyQ), kPhase},
                  {f.chkEstimate(kItemSurveyExponent), "Estimate Survey exponent"},
                  {f.lblEstimate(kItemSurveyExponent), kPhase}});
}

void PlaceAnnualData(InputForm& f) {
  Put(f.SSTab1, kTabCatch,
      {{f.Frame4, "Catch Biomass (metric tons)"}, {f.Frame8, "Catch Weight at Age (kg)"}});
  Put(f.Frame4, {{f.ORVFlexGrid(kGridCatch), "Catch Biomass (metric tons)"}});
  Put(f.Frame8, {{f.ORVFlexGrid(kGridCatchWeight), "Catch Weight at Age (kg)"}});
  Put(f.SSTab1, kTabStockWeight, {{f.Frame12, "Stock Weight at Age (kg)"}});
  Put(f.Frame12, {{f.ORVFlexGrid(kGridStockWeight), "Stock Weight at Age (kg)"}});
  Put(f.SSTab1, kTabSpawnWeight,
      {{f.Frame24, "Spawning Mean Weights at Age (kg)"},
       {f.txtFractionZ, "Fraction of Z Prior to Spawning"}});
  Put(f.Frame24, {{f.ORVFlexGrid(kGridSpawnWeight), "Spawning Mean Weights at Age (kg)"}});
  Put(f.SSTab1, kTabMaturity, {{f.Frame9, "Fraction of Stock Mature at Age"}});
  Put(f.Frame9, {{f.ORVFlexGrid(kGridMaturity), "Fraction of Stock Mature at Age"}});
}

void PlaceFittingOptions(InputForm& f) {
  Put(f.SSTab1, kTabFittingOptions,
      {{f.Frame13, "Estimation Parameters"},
       {f.Frame23, "M Multiplier"},
       {f.Frame10, "Likelihood Emphasis Factors"},
       {f.Frame17, "Coefficients of Variation"},
       {f.Frame11, ""},
       {f.Frame25, ""}});
  Put(f.Frame13, {{f.chkEstimate(kItemM), "Estimate M"},
                  {f.cmbMType, "Prior of M"},
                  {f.lblEstimate(kItemMCv), "CV:"},
                  {f.lblEstimate(kItemM), kPhase},
                  {f.chkEstimateLogRec, "Estimate Mean Logscale Recruitment"},
                  {f.lblPhaseLogRec, kPhase},
                  {f.chkEstimateRecDev, "Estimate Recruitment Deviations"},
                  {f.lblPhaseRecDev, kPhase},
                  {f.chkEstimateFMort, "Estimate Mean Logscale Fishing Mortality"},
                  {f.lblPhaseFMort, kPhase},
                  {f.chkEstimateFMortDev, "Estimate Fishing Mortality Deviations"},
                  {f.lblPhaseFMortDev, kPhase},
                  {f.chkEstimate(kItemInitialF), "Estimate Initial Equilibrium for F"},
                  {f.lblEstimate(kItemInitialF), "Initial Equilibrium Catch Biomass (mt)"},
                  {f.chkEstimate(kItemCriteria), "Estimate Status Determination Criteria"},
                  {f.lblEstimate(kItemTargetF), "Target F"},
                  {f.lblEstimate(kItemLimitF), "Limit F"},
                  {f.lblEstimate(kItemTargetSsb), "Target Spawning Biomass (mt)"},
                  {f.lblEstimate(kItemLimitSsb), "Limit Spawning Biomass (mt)"}});
  Put(f.Frame23, {{f.ORVFlexGrid(kGridMMultiplier), "M Multiplier"}});
  Put(f.Frame10, {{f.lblLikelihood(kEmphasisRecruitment), "Recruitment"},
                  {f.lblLikelihood(kEmphasisCatch), "Catch Biomass"},
                  {f.lblLikelihood(kEmphasisF), "F Penalty"}});
  Put(f.Frame17, {{f.lblVarCoeff(kCvRecruitment), "Recruitment Deviations"},
                  {f.lblVarCoeff(kCvCatch), "Catch Biomass Deviations"},
                  {f.lblVarCoeff(kCvF), "Fishing Mortality Deviations"}});
  Put(f.Frame11, {{f.txtEpsilon, "Small Positive Number to Prevent log(0)"}});
  Put(f.Frame25, {{f.chkShrink, "Apply Shrinkage Factor to Recruitment"},
                  {f.lblShrink, "Number of Years:"},
                  {f.lblShrinkFactor, "Shrinkage Coefficient:"}});
}

// The boxes that have a label of their own, and of those the ones that rest until an option asks for them.
void PlaceBoxes(InputForm& f) {
  f.lblLikelihood.ForEach([&](const Label& label) { PutBeside(label, f.txtLikelihood(label.Index())); });
  f.lblVarCoeff.ForEach([&](const Label& label) { PutBeside(label, f.txtVarCoeff(label.Index())); });
  for (const EstimatePair& pair : EstimatePairs(f)) {
    PutBeside(*pair.label, *pair.phase);
    pair.phase->SetTip(pair.tip);
    pair.label->SetEnabled(false);
    pair.phase->SetVisible(false);
  }
  const struct {
    Label& label;
    TextBox& box;
  } resting[] = {{f.lblNBoot, f.txtNBoot},
                 {f.lblBootSeed, f.txtBootSeed},
                 {f.lblEstSurvSample, f.txtEstSurvSample},
                 {f.lblShrink, f.txtShrink},
                 {f.lblShrinkFactor, f.txtShrinkFactor}};
  for (const auto& row : resting) {
    PutBeside(row.label, row.box);
    row.label.SetEnabled(false);
    row.box.SetVisible(false);
  }
}

// Single run, parametric and flat-topped curves, periods: the first of every group.
void ChooseFirstOptions(InputForm& f) {
  for (const auto* group : {&f.opBoot, &f.opCPUEtype, &f.opFSelModel, &f.opFishSelParametric,
                            &f.opFishSelNonPar, &f.opSurvSelModel, &f.opSurvSelParametric}) {
    (*group)(0).SetValue(true);
  }
  for (Control* unused : std::initializer_list<Control*>{
           &f.chkEstimateFishGamma, &f.opFishSelNonPar(kByPeriod), &f.opFishSelNonPar(kAnnual),
           &f.chkFishSelNonParEst, &f.chkSurvSelParEst(kLogGamma), &f.chkSurvSelNonParEst,
           &f.cmdExpandGrd(kToolCpue), &f.cmdExpandGrd(kToolFisheryAge), &f.txtFishSelAge}) {
    unused->SetEnabled(false);
  }
  f.txtFishSelAge.SetVisible(false);
  f.cmbMType.SetVisible(false);
}

}  // namespace

void InputForm::Design() {
  SSTab1.SetPages({"General", "Fishery Age Data", "Fishery CPUE", "Fishery Selectivity", "Fishery Options",
                   "Survey Data", "Survey Selectivity", "Survey Options", "Catch", "Stock Weight",
                   "Spawn Weight", "Maturity", "Fitting Options"});
  PlaceGeneral(*this);
  PlaceFisheryData(*this);
  PlaceFisherySelectivity(*this);
  PlaceFisheryOptions(*this);
  PlaceSurveyData(*this);
  PlaceSurveySelectivity(*this);
  PlaceSurveyOptions(*this);
  PlaceAnnualData(*this);
  PlaceFittingOptions(*this);
  PlaceBoxes(*this);
  ChooseFirstOptions(*this);

  for (Label* path : {&lblCTL, &lblFile(kFilePin), &lblFile(kFileDat)}) path->SetForeColor(kRed);
  txtModel.SetText(kNoneSelected);
  txtBootSeed.SetText("123456");
  txtZCpue.SetText("0.5");
  txtLikelihood(kEmphasisCatch).SetText("100");
  txtEpsilon.SetText("1.0e-12");
  txtEstimate(kItemInitialF).SetText("0.0");

  ORVFlexGrid.ForEach([](Grid& grid) { grid.Editable = true; });
  ORVFlexGrid(kGridSurveyZ).FixedCols = 0;  // survey 1 stands in column 0
  ORVFlexGrid(kGridPeriods).ReadOnlyCol = 2;
}

}  // namespace tarnvik
