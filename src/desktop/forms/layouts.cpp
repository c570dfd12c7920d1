#include "desktop/forms/layouts.h"

#include "platform/form.h"

namespace tarnvik {

namespace {

const Arrangement kArrangements[] = {
    // --- Input data
    {"frmInput", "SSTab1 0", "Title / Frame1 / Frame2 Frame26"},
    {"frmInput", "Frame1",
     "'Control File' lblCTL cmdBrowseCTL / 'Data File' lblFile(1) cmdBrowse2 /"
     "'Parameter File' lblFile(0) cmdBrowse1 / txtModel"},
    {"frmInput", "Frame26", "opBoot(0) / opBoot(1) / txtNBoot / txtBootSeed"},
    {"frmInput", "Frame5", "ORVFlexGrid(1) / cmdCondenseGrd(1) cmdExpandGrd(1) cmdFillBlanks(1)"},
    {"frmInput", "SSTab1 2", "Frame14*3 lstCPUEages*1 / (Frame27 txtZCpue)"},
    {"frmInput", "Frame14",
     "chkFitFishCPUE / ORVFlexGrid(5) / cmdCondenseGrd(0) cmdExpandGrd(0) cmdFillBlanks(0)"},
    {"frmInput", "Frame27", "opCPUEtype(1) opCPUEtype(0)"},
    {"frmInput", "SSTab1 3", "Frame3 / ORVFlexGrid(8) ORVFlexGrid(11)=txtFishSelAge"},
    {"frmInput", "Frame3",
     "opFSelModel(0) opFSelModel(1) / frmFishSelParModel frmFishSelNonPar /"
     "frmFishSelParEst frmFishSelNonParEst"},
    {"frmInput", "frmFishSelParEst",
     "chkEstimateFishGamma txtPhaseFishGamma / chkEstimateFishBeta txtPhaseFishBeta /"
     "chkEstimateFishA50 txtPhaseFishA50"},
    {"frmInput", "frmFishSelNonParEst", "chkFishSelNonParEst txtPhaseFSelNonPar"},
    {"frmInput", "SSTab1 4", "Frame18 / Frame19 Frame20"},
    {"frmInput", "Frame18",
     "chkEstimate(4) txtEstimate(4) / chkEstimate(10) txtEstimate(10) / chkEstimate(11) txtEstimate(11)"},
    {"frmInput", "SSTab1 5", "(Frame29 frmSurvInfo) / (Frame28*1 Frame30*2)"},
    {"frmInput", "frmSurvInfo", "'Title' lblSurvTitle cmbSurvFYear cmbSurvXYear"},
    {"frmInput", "Frame28", "chkSurvFit / ORVFlexGrid(16)"},
    {"frmInput", "SSTab1 6", "Frame22 / Frame21"},
    {"frmInput", "Frame22",
     "opSurvSelModel(0) opSurvSelModel(1) / frmSurvSelModel Frame7 / frmSurvSelEstPar ."},
    {"frmInput", "frmSurvSelEstPar",
     "chkSurvSelParEst(0) txtSurvSelParEst(0) / chkSurvSelParEst(1) txtSurvSelParEst(1) /"
     "chkSurvSelParEst(2) txtSurvSelParEst(2)"},
    {"frmInput", "Frame7", "chkSurvSelNonParEst txtSurvSelNonParEst"},
    {"frmInput", "SSTab1 7", "Frame15 / Frame6 / Frame16"},
    {"frmInput", "Frame16",
     "ORVFlexGrid(9)*3 listSurvFit*2 (listSurvSample / (txtEstSurvSample)) /"
     "(chkEstimate(2) txtEstimate(2) / chkEstimate(3) txtEstimate(3))"},
    {"frmInput", "SSTab1 8", "Frame4*1 Frame8*3"},
    {"frmInput", "SSTab1 10", "txtFractionZ / Frame24"},
    {"frmInput", "SSTab1 12", "(Frame13 / Frame25 / Frame11) (Frame10 / Frame17 / Frame23)"},
    {"frmInput", "Frame13",
     "chkEstimate(1) txtEstimate(1) / . cmbMType / . txtEstimate(0) / chkEstimateLogRec txtPhaseLogRec /"
     "chkEstimateRecDev txtPhaseRecDev / chkEstimateFMort txtPhaseFMort /"
     "chkEstimateFMortDev txtPhaseFMortDev / chkEstimate(5) txtEstimate(5) /"
     "chkEstimate(6) txtEstimate(12) / . txtEstimate(13) / . txtEstimate(14) / . txtEstimate(15)"},
    {"frmInput", "Frame25", "chkShrink / txtShrink / txtShrinkFactor"},

    // --- Parameter values
    {"frmPin", "SSTab1 0",
     "(txtParmFile(0) / txtParmFile(1) / txtParmFile(2)) / ORVFlexGrid1(0) ORVFlexGrid1(1)"},
    {"frmPin", "SSTab1 1",
     "(txtParmFile(3) / txtParmFile(4)) / frmParFishSel=frmNonParFishSel1=frmNonParFishSel2"},
    {"frmPin", "SSTab1 2", "Frame3 / frmParSurvSel=frmNonParSurvSel"},

    // --- Result tables
    {"frmOutputData", "SSTab1 3", "('Survey:' cmbJumpSurvey) / Frame3"},
    {"frmOutputData", "SSTab1 4", "('Go to:' Combo1) / FrameGrid(3)"},
    {"frmOutputData", "SSTab1 5", "('Go to:' Combo2) / FrameGrid(4)"},
    {"frmOutputData", "SSTab1 6", "FrameGrid(16)*2 FrameGrid(17)*3"},
    {"frmOutputData", "SSTab1 7", "(lblRatioCaption(11) lblRatio(11)) / FrameGrid(6)*3 FrameGrid(8)*2"},
    {"frmOutputData", "SSTab3 1", "FrameGrid(5) / FrameRatio(0) / FrameRatio(1)"},
    {"frmOutputData", "FrameRatio(0)",
     ". 'Value' 'Std. Dev.' / lblRatioCaption(0) lblRatio(0) lblRatioStdDev(0) /"
     "lblRatioCaption(1) lblRatio(1) lblRatioStdDev(1)"},
    {"frmOutputData", "FrameRatio(1)",
     ". 'Value' 'Std. Dev.' / lblRatioCaption(2) lblRatio(2) lblRatioStdDev(2) /"
     "lblRatioCaption(3) lblRatio(3) lblRatioStdDev(3)"},
    {"frmOutputData", "SSTab1 10",
     "(lblRatioCaption(9) lblRatio(9)) (lblRatioCaption(10) lblRatio(10)) / FrameGrid(12) FrameGrid(13)"},
    {"frmOutputData", "SSTab1 11",
     "(lblUnfishedCaption(0) lblUnfished(0) / lblUnfishedCaption(1) lblUnfished(1) /"
     "lblUnfishedCaption(2) lblUnfished(2)) / FrameGrid(20) FrameGrid(21) FrameGrid(22)"},
    {"frmOutputData", "SSTab1 12",
     "(. 'Value' 'Std. Dev.' / lblRatioCaption(4) lblRatio(4) lblRatioStdDev(4) /"
     "lblRatioCaption(5) lblRatio(5) lblRatioStdDev(5) / lblRatioCaption(6) lblRatio(6)) / FrameGrid(9)"},
    {"frmOutputData", "SSTab1 13",
     "(lblRatioCaption(7) lblRatio(7)) (lblRatioCaption(8) lblRatio(8)) / FrameGrid(10) FrameGrid(11)"},
    {"frmOutputData", "SSTab1 14", "FrameGrid(14) FrameGrid(15) / FrameGrid(19)"},
    {"frmOutputData", "SSTab1 15",
     "(lblSummCaption(10) lblSumm(10) / lblSummCaption(1) lblSumm(1) / lblSummCaption(4) lblSumm(4) /"
     "LabelCPUE1 lblSumm(6) / lblSummCaption(5) lblSumm(5) / lblSummCaption(2) lblSumm(2) /"
     "lblSummCaption(3) lblSumm(3)) / (Label8(11) / MSFlexGrid1) (Label8(12) / MSFlexGrid2)"},
    {"frmOutputData", "SSTab1 16",
     "(lblSummCaption(22) lblSumm(22) / lblSummCaption(23) lblSumm(23) / LabelCPUE2 lblSumm(25) /"
     "lblSummCaption(24) lblSumm(24)) / (Label8(3) / MSFlexGrid3)*2 (Label8(4) / MSFlexGrid4)*2 "
     "(Label8(5) / MSFlexGrid5)*3"},

    // --- Estimated parameters
    {"frmSTD", "SSTab1 0", "FramePoint / FrameGrid(4) FrameGrid(5)"},
    {"frmSTD", "FramePoint",
     "lblHeading(0) lblHeading(1) lblHeading(2) / lbl1(0) lblEst(0) lblStd(0) / lbl1(1) lblEst(1) lblStd(1) /"
     "lbl1(2) lblEst(2) lblStd(2) / lbl1(3) lblEst(3) lblStd(3) / lbl1(4) lblEst(4) lblStd(4) /"
     "lbl1(5) lblEst(5) lblStd(5)"},
    {"frmSTD", "SSTab1 1", "FrameGrid(0) FrameGrid(1)"},
    {"frmSTD", "SSTab1 2", "FrameSTD(1) / Chart19"},
    {"frmSTD", "SSTab1 3", "FrameSTD(2) / Chart20"},
    {"frmSTD", "FrameSTD(1)",
     "lblSTDlevels(1) lblSTDplus(1) txtSTDplus(1) lblSTDminus(1) txtSTDminus(1) cmdPlot19"},
    {"frmSTD", "FrameSTD(2)",
     "lblSTDlevels(2) lblSTDplus(2) txtSTDplus(2) lblSTDminus(2) txtSTDminus(2) cmdPlot20"},
    {"frmSTD", "SSTab1 4", "FrameGrid(2) / FrameGrid(3)"},

    // --- Output plots
    {"frmOutput", "SSTab1 0", "FramePlot1 cmdPlot1 cmdClearPlot1 lblPlot1 > / Chart1"},
    {"frmOutput", "SSTab1 1", "(Option23(0) / Option23(1)) FrameSTD(8) > / Chart23"},
    {"frmOutput", "SSTab1 2", "(Option27) / Chart27"},
    {"frmOutput", "SSTab1 3", "FramePlot3 (Option3a(0) Option3a(2) / Option3a(1) Option3a(3)) > / Chart3"},
    {"frmOutput", "SSTab1 4", "FramePlot4 Check4 > / (Option4) / Chart4"},
    {"frmOutput", "SSTab1 5", "FramePlot5a FramePlot5b Check5 > / (Option5) / Chart5"},
    {"frmOutput", "SSTab1 7", "FramePlot18 > / Chart18"},
    {"frmOutput", "SSTab1 8", "(Option9(0) / Option9(1)) FrameSTD(3) > / Chart9"},
    {"frmOutput", "SSTab1 9", "FrameSTD(4) > / Chart11"},
    {"frmOutput", "SSTab1 10", "(Option10) / Chart10"},
    {"frmOutput", "SSTab1 11", "(Option6(0) / Option6(1) / Option6(2)) FrameSTD(0) > / Chart6"},
    {"frmOutput", "SSTab1 12",
     "FramePlot7(0)=FramePlot7(1) (Option7(0) Option7(1) / Option7(2) Option7(3) /"
     "Option7(4) Option7(5) / Option7(6) Option7(7)) > / Chart7"},
    {"frmOutput", "SSTab1 13", "(Option26(0) / Option26(1)) FrameSTD(7) > / Chart26"},
    {"frmOutput", "SSTab1 14", "(Option8) / Chart8"},
    {"frmOutput", "SSTab1 15", "FramePlot2 > / Chart2"},
    {"frmOutput", "SSTab1 16", "(Option12(0) / Option12(1)) FrameSTD(5) > / Chart12"},
    {"frmOutput", "SSTab1 17", "(Option25(0) / Option25(1)) FrameSTD(6) > / Chart25"},
    {"frmOutput", "SSTab1 19", "(Option13(0) / Option13(1)) FramePlot13(0) FramePlot13(1) > / Chart13"},
    {"frmOutput", "SSTab1 20", "FramePlot14 > / Chart14"},
    {"frmOutput", "FrameSTD(0)",
     "lblSTDlevels(0) lblSTDplus(0) txtSTDplus(0) lblSTDminus(0) txtSTDminus(0) cmdPlot6"},
    {"frmOutput", "FrameSTD(3)",
     "lblSTDlevels(3) lblSTDplus(3) txtSTDplus(3) lblSTDminus(3) txtSTDminus(3) cmdPlot9"},
    {"frmOutput", "FrameSTD(4)",
     "lblSTDlevels(4) lblSTDplus(4) txtSTDplus(4) lblSTDminus(4) txtSTDminus(4) cmdPlot11"},
    {"frmOutput", "FrameSTD(5)",
     "lblSTDlevels(5) lblSTDplus(5) txtSTDplus(5) lblSTDminus(5) txtSTDminus(5) cmdPlot12"},
    {"frmOutput", "FrameSTD(6)",
     "lblSTDlevels(6) lblSTDplus(6) txtSTDplus(6) lblSTDminus(6) txtSTDminus(6) cmdPlot25"},
    {"frmOutput", "FrameSTD(7)",
     "lblSTDlevels(7) lblSTDplus(7) txtSTDplus(7) lblSTDminus(7) txtSTDminus(7) cmdPlot26"},
    {"frmOutput", "FrameSTD(8)",
     "lblSTDlevels(8) lblSTDplus(8) txtSTDplus(8) lblSTDminus(8) txtSTDminus(8) cmdPlot23"},

    // --- Input plots
    {"frmPlotInput", "SSTab1 0", "frmPlot2 lblFishNoData > / Chart2"},
    {"frmPlotInput", "SSTab1 1", "lblCPUENoData / Chart3"},
    {"frmPlotInput", "SSTab1 2", "frmPlot4a frmPlot4b lblSurvNoData > / Chart4"},
    {"frmPlotInput", "SSTab1 3", "frmPlot5 lblNoData5 > / Chart5"},
    {"frmPlotInput", "SSTab1 4", "lblNoData1 / Chart1"},
    {"frmPlotInput", "SSTab1 5", "frmPlot6 lblNoData6 > / Chart6"},
    {"frmPlotInput", "SSTab1 6", "frmPlot7 lblNoData7 > / Chart7"},
    {"frmPlotInput", "SSTab1 7", "frmPlot11 lblNoData11 > / Chart11"},
    {"frmPlotInput", "SSTab1 8", "frmPlot8 lblNoData8 > / Chart8"},
    {"frmPlotInput", "SSTab1 9", "lblMNoData / Chart14"},
    {"frmPlotInput", "SSTab1 10", "lblNoData9 / Chart9"},
    {"frmPlotInput", "SSTab1 11", "lblNoData10 / Chart10"},
    {"frmPlotInput", "SSTab1 12", "frmPlot12 lblNoData12 > / Chart12"},
    {"frmPlotInput", "SSTab1 13", "frmPlot13 lblNoData13 > / Chart13"},

    // --- Plot collection
    {"frmPlotCollect", "", "SSTab1 / cmdAll cmdDefault cmdNone > cmdGenerate cmdCancel"},
    {"frmPlotCollect", "SSTab1 0",
     "lblHeading(0) / chkPlots(0) / chkPlots(25) / chkPlots(24) / chkPlots(2) / Label3 /"
     "(. chkPlots(3) / . chkPlots(4) / . chkPlots(5)) / Label5 /"
     "(. chkPlots(6) / . chkPlots(7) / . chkPlots(8))"},
    {"frmPlotCollect", "SSTab1 1", "lblHeading(1)"},
    {"frmPlotCollect", "SSTab1 2", "lblHeading(2)"},

    // --- Dialogs
    {"frmView", "", "rtfView / cmdCopy > cmdCancel"},
    {"frmViewOpt", "", "optView(0) / optView(1) / framView / > cmdOK cmdCancel"},
    {"frmViewOpt", "framView", "lblFile cmdBrowse"},
    {"frmFillNoData", "",
     "Label1 txtWhichGrid / lblExplain / 'No Data Value:' txtDataVal / lblNote / > cmdOK cmdCancel"},
    {"frmEditGP", "",
     "lblYr0 txtYr(0) / lblYr1 txtYr(1) chkAuto / lblAges txtAges / lblSurveys txtSurveys /"
     "> cmdOK cmdCancel"},
    {"frmEditTextBox", "", "'Title:' Text1 / > cmdOK cmdCancel"},
    {"frmAboutTARNVIK", "", "lblTitle / lblVersion / lblDescription / lblLicence / > cmdOK"},
    {"frmVPAIndices", "",
     "(Label1 lblVPAFile) / (Label4 cmbNSurv) / (Label2 / lstVPA)*3 (Label3 / lstTARNVIK)*4 "
     "(Label5 / ORVFlexGrid1)*2 / lblHelp / > cmdImport cmdCancel"},
};

struct LookRow {
  const char* form;
  const char* control;
  Look look;
};

const LookRow kLooks[] = {
    {"frmInput", "Title", Look::Heading},
    {"frmInput", "lblCTL", Look::Path},
    {"frmInput", "lblFile", Look::Path},
    {"frmInput", "txtModel", Look::Wide},
    {"frmInput", "ORVFlexGrid(3)", Look::Short},
    {"frmInput", "lstCPUEages", Look::CheckList},
    {"frmInput", "listSurvFit", Look::CheckList},
    {"frmInput", "listSurvSample", Look::CheckList},
    {"frmPin", "ORVFlexGrid1(2)", Look::Short},
    {"frmPin", "ORVFlexGrid1(3)", Look::Short},
    {"frmPin", "ORVFlexGrid1(5)", Look::Short},
    {"frmOutputData", "lblRatio", Look::Value},
    {"frmOutputData", "lblRatioStdDev", Look::Value},
    {"frmOutputData", "lblUnfished", Look::Value},
    {"frmOutputData", "lblSumm", Look::Value},
    {"frmSTD", "lblEst", Look::Value},
    {"frmSTD", "lblStd", Look::Value},
    {"frmPlotCollect", "lblHeading", Look::Heading},
    {"frmViewOpt", "lblFile", Look::Path},
    {"frmFillNoData", "txtWhichGrid", Look::Wide},
    {"frmFillNoData", "lblExplain", Look::Note},
    {"frmFillNoData", "lblNote", Look::Note},
    {"frmEditTextBox", "Text1", Look::Wide},
    {"frmAboutTARNVIK", "lblTitle", Look::Heading},
    {"frmAboutTARNVIK", "lblLicence", Look::Note},
    {"frmVPAIndices", "lblVPAFile", Look::Path},
    {"frmVPAIndices", "lblHelp", Look::Note},
};

struct SizeRow {
  const char* form;
  int width;
  int height;
};

const SizeRow kSizes[] = {
    {"frmInput", 1140, 680},      {"frmPin", 1000, 640},        {"frmOutputData", 1140, 680},
    {"frmSTD", 1020, 640},        {"frmOutput", 1140, 680},     {"frmPlotInput", 1000, 640},
    {"frmPlotCollect", 620, 560}, {"frmView", 860, 600},        {"frmViewOpt", 520, 0},
    {"frmEditGP", 480, 0},        {"frmFillNoData", 460, 0},    {"frmEditTextBox", 420, 0},
    {"frmAboutTARNVIK", 400, 0},  {"frmVPAIndices", 1160, 640},
};

}  // namespace

const char* ArrangementOf(std::string_view form, std::string_view place) {
  for (const Arrangement& row : kArrangements) {
    if (row.form == form && row.place == place) return row.rows;
  }
  return nullptr;
}

Look LookOf(const Control& control) {
  for (const LookRow& row : kLooks) {
    if (control.Owner().Name() != row.form) continue;
    if (row.control == control.Name() || row.control == control.FullName()) return row.look;
  }
  return Look::Plain;
}

QSize FirstSizeOf(std::string_view form) {
  for (const SizeRow& row : kSizes) {
    if (row.form == form) return {row.width, row.height};
  }
  return {};
}

}  // namespace tarnvik
