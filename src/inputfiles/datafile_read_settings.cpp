// Reader of the data file: tables at age, coefficients, emphasis factors, flags, phases.

#include "core/globals.h"
#include "inputedit/labels.h"
#include "inputedit/options.h"
#include "inputedit/year_grids.h"
#include "inputfiles/datafile_read.h"

namespace tarnvik {

namespace {

void ReadAtAge(Grid& grid) {
  for (int row = 1; row <= NYears; ++row) ReadRow(grid, row, 1, NAges);
}

// Before version 1.4 the stock weights served as spawning weights.
void CopyAtAge(const Grid& from, Grid& to) {
  for (int row = 1; row <= NYears; ++row) {
    for (int age = 1; age <= NAges; ++age) to.SetTextMatrix(row, age, from.TextMatrix(row, age));
  }
}

void ReadEmphasis(InputForm& form, double version) {
  if (version >= 1.4) ReadField(form.txtEstimate(kItemMCv));
  for (const int coefficient : {kCvRecruitment, kCvCatch, kCvF}) ReadField(form.txtVarCoeff(coefficient));
  ReadField(form.txtLikelihood(kEmphasisRecruitment));
  if (version >= 1.2) {
    ReadField(form.txtLikelihood(kEmphasisCpue));
  } else {
    form.txtLikelihood(kEmphasisCpue).SetText("1");
  }
  ReadField(form.txtLikelihood(kEmphasisFisheryAge));
  ReadColumn(form.ORVFlexGrid(kGridSurveyEmphasis), 1, NIndex);
  ReadColumn(form.ORVFlexGrid(kGridSurveyEmphasis), 2, NIndex);
  for (const int emphasis : {kEmphasisCatch, kEmphasisSelectivity, kEmphasisF})
    ReadField(form.txtLikelihood(emphasis));
}

void ReadShrinkage(InputForm& form, double version) {
  if (version >= 1.4) {
    ReadField(form.txtShrink);
    ReadField(form.txtShrinkFactor);
  } else {
    form.txtShrink.SetText("0");
    form.txtShrinkFactor.SetText("1");
  }
  form.chkShrink.SetValue(Val(form.txtShrink.Text()) == 0.0 ? 0 : 1);
}

void ReadBootstrap(InputForm& form, double version) {
  if (version >= 1.4) {
    ReadField(form.txtNBoot);
    ReadField(form.txtBootSeed);
  } else {
    form.txtNBoot.SetText("0");
    form.txtBootSeed.SetText("123456");
  }
  form.opBoot(Val(form.txtNBoot.Text()) == 0.0 ? 0 : 1).SetValue(true);
}

// Checks an item or not. Its click handler turns label and field on and off with it.
void PutEstimate(CheckBox& item, bool estimated) { item.SetValue(estimated ? 1 : 0); }

// The value is the number of the prior, from 1; before version 1.4 it is the phase.
void ReadEstimateM(InputForm& form, double version) {
  const int value = ValInt(ReadDataLine());
  const bool estimated = value > 0;
  PutEstimate(form.chkEstimate(kItemM), estimated);
  form.cmbMType.SetEnabled(estimated);
  if (version < 1.4) {
    form.txtEstimate(kItemM).SetText(estimated ? NumberText(value) : "");
  } else if (estimated) {
    form.cmbMType.SetListIndex(value - 1);
  }
}

void ReadEstimatedMeans(InputForm& form, double version) {
  CheckBox* const items[] = {&form.chkEstimateLogRec, &form.chkEstimateRecDev, &form.chkEstimateFMort,
                             &form.chkEstimateFMortDev};
  for (CheckBox* item : items) PutEstimate(*item, version < 1.4 || Val(ReadDataLine()) != 0.0);
}

// Of versions 1.2 and 1.3 a negative value is no fit, from 1.4 on every value but 0 is one.
bool ReadFitCpue(double version) {
  if (version < 1.2) return false;
  const double value = Val(ReadDataLine());
  return version >= 1.4 ? value != 0.0 : value > 0.0;
}

// A flag that was a phase before version 1.4.
void ReadEstimateOrPhase(InputForm& form, int index, double version) {
  const int value = ValInt(ReadDataLine());
  PutEstimate(form.chkEstimate(index), value > 0);
  if (value <= 0) {
    form.txtEstimate(index).SetText("");
  } else if (version < 1.4) {
    form.txtEstimate(index).SetText(NumberText(value));
  }
}

void ReadCpueOptions(InputForm& form, double version) {
  form.chkFitFishCPUE.SetValue(ReadFitCpue(version) ? 1 : 0);
  const bool numbers = version >= 1.2 && ValInt(ReadDataLine()) == 1;
  form.opCPUEtype(numbers ? 1 : 0).SetValue(true);
  if (version >= 1.2) {
    ReadEstimateOrPhase(form, kItemCpueQ, version);
    ReadEstimateOrPhase(form, kItemCpueExponent, version);
  } else {
    PutEstimate(form.chkEstimate(kItemCpueQ), true);
  }
}

void ReadMarks(ListBox& list) {
  LineWords words(ReadDataLine());
  for (int survey = 1; survey <= NIndex; ++survey) list.SetSelected(survey - 1, IsOne(words.Next()));
}

void ReadSurveyOptions(InputForm& form, double version) {
  if (version >= 1.4) {
    LineWords words(ReadDataLine());
    for (int survey = 1; survey <= NIndex; ++survey) SurvParametric(survey) = IsOne(words.Next()) ? 1 : 0;
  }
  RefreshSurveyLists(kLabelsSurveyFit);
  if (version >= 1.2) ReadMarks(form.listSurvFit);
  PutEstimate(form.chkEstimate(kItemSurveyQ), ValInt(ReadDataLine()) > 0);
  if (version < 1.4) form.txtEstimate(kItemSurveyQ).SetText("6");
  const int exponent = ValInt(ReadDataLine());
  PutEstimate(form.chkEstimate(kItemSurveyExponent), exponent > 0);
  if (version < 1.4) form.txtEstimate(kItemSurveyExponent).SetText(exponent > 0 ? NumberText(exponent) : "");
}

void ReadSelectivityShapes(InputForm& form) {
  form.opFishSelParametric(IsOne(TokenFirst(ReadDataLine())) ? 0 : 1).SetValue(true);
  ApplyFishSelModel();
  form.opSurvSelParametric(IsOne(TokenFirst(ReadDataLine())) ? 0 : 1).SetValue(true);
  ApplySurvSelModel();
}

void ReadSampleSizes(InputForm& form) {
  PutEstimate(form.chkEstimate(kItemFisherySample), IsOne(ReadDataLine()));
  form.txtEstimate(kItemFisherySample).SetText("");
  ReadMarks(form.listSurvSample);
  form.listSurvSample.SetListIndex(-1);
}

void ReadInitialF(InputForm& form) {
  PutEstimate(form.chkEstimate(kItemInitialF), IsOne(ReadDataLine()));
  NewRecYr = RecDevStartYear();
  ReadField(form.txtEstimate(kItemInitialF));
}

void ReadCriteria(InputForm& form) {
  PutEstimate(form.chkEstimate(kItemCriteria), IsOne(ReadDataLine()));
  for (const int criterion : {kItemTargetF, kItemLimitF, kItemTargetSsb, kItemLimitSsb})
    ReadField(form.txtEstimate(criterion));
}

// A phase below 0 says that the item is not estimated; its field is empty then. Returns whether it is
// estimated.
bool ReadPhase(TextBox& field) {
  const std::string_view line = Trim(ReadDataLine());
  const bool estimated = Val(line) >= 0.0;
  field.SetText(estimated ? line : std::string_view());
  return estimated;
}

void ReadPhase(CheckBox& box, TextBox& field) { PutEstimate(box, ReadPhase(field)); }

// The same pair of controls serves the phase by period (option 0) and the annual one (option 1).
void ReadNonparametricPhase(InputForm& form, int option) {
  const std::string_view line = Trim(ReadDataLine());
  const bool parametric = form.opFSelModel(kParametric).Value();
  if (!parametric && !form.opFishSelNonPar(option).Value()) return;
  const bool estimated = !parametric && Val(line) >= 0.0;
  form.chkFishSelNonParEst.SetValue(estimated ? 1 : 0);
  form.txtPhaseFSelNonPar.SetText(estimated ? line : std::string_view());
}

void ReadPhases(InputForm& form) {
  ReadPhase(form.txtEstimate(kItemM));
  ReadPhase(form.txtPhaseLogRec);
  ReadPhase(form.txtPhaseRecDev);
  ReadPhase(form.txtPhaseFMort);
  ReadPhase(form.txtPhaseFMortDev);
  ReadPhase(form.txtEstimate(kItemCpueQ));
  ReadPhase(form.txtEstimate(kItemCpueExponent));
  ReadPhase(form.chkEstimateFishGamma, form.txtPhaseFishGamma);
  ReadPhase(form.chkEstimateFishBeta, form.txtPhaseFishBeta);
  ReadPhase(form.chkEstimateFishA50, form.txtPhaseFishA50);
  ReadNonparametricPhase(form, 0);
  ReadNonparametricPhase(form, 1);
  ReadPhase(form.txtEstimate(kItemFisherySample));
  ReadPhase(form.txtEstimate(kItemSurveyQ));
  ReadPhase(form.txtEstimate(kItemSurveyExponent));
  for (const int parameter : {kLogGamma, kLogBeta, kLogA50}) {
    ReadPhase(form.chkSurvSelParEst(parameter), form.txtSurvSelParEst(parameter));
  }
  ReadPhase(form.chkSurvSelNonParEst, form.txtSurvSelNonParEst);
  ReadPhase(form.txtEstSurvSample);
}

}  // namespace

void ReadBiologyLines(InputForm& form, double version) {
  ReadAtAge(form.ORVFlexGrid(kGridCatchWeight));
  ReadAtAge(form.ORVFlexGrid(kGridStockWeight));
  if (version >= 1.4) {
    ReadAtAge(form.ORVFlexGrid(kGridSpawnWeight));
  } else {
    CopyAtAge(form.ORVFlexGrid(kGridStockWeight), form.ORVFlexGrid(kGridSpawnWeight));
  }
  ReadField(form.txtFractionZ);
  ReadAtAge(form.ORVFlexGrid(kGridMaturity));
  if (version >= 1.4) {
    ReadColumn(form.ORVFlexGrid(kGridMMultiplier), 1, NAges);
  } else {
    for (int age = 1; age <= NAges; ++age) form.ORVFlexGrid(kGridMMultiplier).SetTextMatrix(age, 1, "1.0");
  }
}

void ReadSettingLines(InputForm& form, double version) {
  ReadEmphasis(form, version);
  ReadShrinkage(form, version);
  ReadBootstrap(form, version);
  if (version >= 1.4) {
    ReadField(form.txtEpsilon);
  } else {
    form.txtEpsilon.SetText("1.0e-12");
  }
  ReadEstimateM(form, version);
  ReadEstimatedMeans(form, version);
  const bool annual = version >= 1.4 && Val(ReadDataLine()) != 0.0;
  form.opFishSelNonPar(annual ? 1 : 0).SetValue(true);
  ReadCpueOptions(form, version);
  ReadSurveyOptions(form, version);
  ReadSelectivityShapes(form);
  ReadSampleSizes(form);
  ReadInitialF(form);
  ReadCriteria(form);
  if (version >= 1.4) ReadPhases(form);
}

}  // namespace tarnvik
