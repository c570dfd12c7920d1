#include "plots/frmplotcollect.h"

#include <string>

#include "core/globals.h"
#include "core/text.h"
#include "platform/host.h"
#include "plots/plot_collection.h"
#include "plots/plot_parts.h"
#include "results/frmoutput.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

// The boxes by index. Which plots a box stands for is told by its index alone (see plot_collection.cpp).
struct PlotBox {
  int page;
  const char* caption;
  bool by_default = false;
};

const PlotBox kBoxes[kPlotBoxes] = {
    /* 0*/ {0, "Plots of Numbers at Age"},
    /* 1*/ {2, "Time Series Plots of Age Specific Fishing Mortality"},
    /* 2*/ {0, "Time Series Plots of Biomass Index for Surveys", true},
    /* 3*/ {0, "Observed/Predicted"},
    /* 4*/ {0, "Residuals", true},
    /* 5*/ {0, "Standardized Residuals", true},
    /* 6*/ {0, "Observed/Predicted"},
    /* 7*/ {0, "Residuals", true},
    /* 8*/ {0, "Standardized Residuals", true},
    /* 9*/ {1, "Time Series Plot of Total Population Biomass  (1 Plot)"},
    /*10*/ {1, "Time Series Plot of Total Spawning Biomass  (1 Plot)"},
    /*11*/ {1, "Time Series Plot of Total Exploitable Biomass  (1 Plot)"},
    /*12*/ {1, "Time Series Plots of Recruitment  (2 Plots)"},
    /*13*/ {1, "Time Series Plots of Total Catch Biomass  (3 Plots)", true},
    /*14*/ {1, "Time Series Plot of Annual Surplus Production  (1 Plot)"},
    /*15*/ {2, "Time Series Plots of Average Annual Fishing Mortality  (2 Plots)", true},
    /*16*/ {2, "Plots of Fishery Selectivity by Period", true},
    /*17*/ {2, "Plots of Survey Selectivity", true},
    /*18*/ {2, "Plot of F vs. SSB  (1 Plot)"},
    /*19*/ {2, "Plot of Likelihood Components  (1 Plot)", true},
    /*20*/ {1, "Plots of Fishery Sample Size  (1 Plot)"},
    /*21*/ {2, "Plot of Recruitment Deviations  (1 Plot)"},
    /*22*/ {2, "Plot of Fishing Mortality Deviations  (1 Plot)"},
    /*23*/ {1, "Plot of Survey Sample Size"},
    /*24*/ {0, "Time Series Plots of CPUE Biomass Index  (4 Plots)"},
    /*25*/ {0, "Plot of Numbers at Age: Last Year; Last Year + 1.  (2 Plots)", true},
    /*26*/ {2, "Plots of F/F_Target and F/F_Limit  (2 Plots)"},
    /*27*/ {2, "Plots of Spawning Biomass/Target and Spawning Biomass/Limit  (2 Plots)"},
    /*28*/ {2, "Plots of Fishery Selectivity by Year"},
};

// Pages of frmOutput that say whether the model gave what a box stands for. The two kinds of ratios switch
// the pages of these numbers, whatever the pages show.
constexpr int kCpuePage = kPlotCpue;
constexpr int kFRatioPage = 13;
constexpr int kBiomassRatioPage = 14;

bool IsAvailable(int page) { return frmOutput->SSTab1.TabEnabled(page); }

// The box stands or falls with the results: ticked and enabled, or neither.
void OfferRatios(int box, int page) {
  const bool available = IsAvailable(page);
  frmPlotCollect->chkPlots(box).SetEnabled(available);
  frmPlotCollect->chkPlots(box).SetValue(available ? 1 : 0);
}

void SetBoxes(int first, int last, int value) {
  for (int box = first; box <= last; ++box) frmPlotCollect->chkPlots(box).SetValue(value);
}

}  // namespace

PlotCollectForm::PlotCollectForm() : Form("frmPlotCollect", "Plot Collection") {
  SSTab1.SetPages({" Plot Selection 1", " Plot Selection 2", " Plot Selection 3"});
  lblHeading.ForEach([this](Label& label) {
    label.SetCaption("Select Plots for Output Collection");
    label.SetContainer(&SSTab1, label.Index());
  });
  Label3.SetCaption("Plots of Fishery Proportions at Age");
  Label5.SetCaption("Plots of Survey Proportions at Age");
  for (Label* label : {&Label3, &Label5}) label->SetContainer(&SSTab1, 0);
  chkPlots.ForEach([this](CheckBox& box) {
    const PlotBox& design = kBoxes[box.Index()];
    box.SetCaption(design.caption);
    box.SetContainer(&SSTab1, design.page);
  });
  const struct {
    CommandButton& button;
    const char* caption;
    Handler effect;
  } buttons[] = {
      {cmdAll, "Select All", frmPlotCollect_cmdAll_Click},
      {cmdDefault, "Select Defaults", frmPlotCollect_cmdDefault_Click},
      {cmdNone, "De-Select All", frmPlotCollect_cmdNone_Click},
      {cmdGenerate, "Generate Plot Collection", frmPlotCollect_cmdGenerate_Click},
      {cmdCancel, "Cancel", frmPlotCollect_cmdCancel_Click},
  };
  for (const auto& row : buttons) {
    row.button.SetCaption(row.caption);
    row.button.OnClick = row.effect;
  }
}

void PlotCollectForm::Load() { frmPlotCollect_Form_Load(); }

int CountYearsObserved() {
  int years = 0;
  for (int row = 1; row <= NYears; ++row) {
    if (HasObservedShare(ResultTable(kTableFisheryAge), row, 2)) ++years;
  }
  return years;
}

namespace {

void ShowCount(int box, int count, int shown_at) {
  frmPlotCollect->chkPlots(shown_at).SetCaption(std::string(Trim(kBoxes[box].caption)) + "  (" +
                                                std::to_string(count) + " Plots)");
}

}  // namespace

void frmPlotCollect_Form_Load() {
  const int observed = CountYearsObserved();
  const struct {
    int box;
    int count;
  } counts[] = {
      {0, NYears},        {1, NAges},         {2, 4 * NIndex},      {3, NYears},
      {4, FishAgeNYears}, {5, FishAgeNYears}, {6, NIndex * NYears}, {7, observed},
      {8, observed},      {16, NSelPer},      {17, NIndex},         {28, NYears},
  };
  for (const auto& row : counts) ShowCount(row.box, row.count, row.box);
  // Users know box 17 under the caption of the survey sample sizes; box 23 keeps its own.
  ShowCount(23, NIndex, 17);

  const bool has_cpue = IsAvailable(kCpuePage);
  if (!has_cpue) frmPlotCollect->chkPlots(24).SetValue(0);
  frmPlotCollect->chkPlots(24).SetEnabled(has_cpue);
  OfferRatios(26, kFRatioPage);
  OfferRatios(27, kBiomassRatioPage);
  frmPlotCollect->SSTab1.SetTab(0);
}

void frmPlotCollect_cmdAll_Click(int) {
  SetBoxes(0, 23, 1);
  if (IsAvailable(kCpuePage)) SetBoxes(24, 25, 1);
  if (IsAvailable(kFRatioPage)) SetBoxes(26, 26, 1);
  if (IsAvailable(kBiomassRatioPage)) SetBoxes(27, 27, 1);
}

void frmPlotCollect_cmdDefault_Click(int) {
  SetBoxes(0, 27, 0);
  for (int box = 0; box < kPlotBoxes; ++box) {
    if (kBoxes[box].by_default) SetBoxes(box, box, 1);
  }
  OfferRatios(26, kFRatioPage);
  OfferRatios(27, kBiomassRatioPage);
}

void frmPlotCollect_cmdNone_Click(int) { SetBoxes(0, 27, 0); }

void frmPlotCollect_cmdGenerate_Click(int) {
  if (OutputFormsOpen != kTrue || (StdFileRead != kTrue && ParFileRead != kTrue)) {
    ShowMessage("Please Scan In Model Results Before Proceding");
    return;
  }
  for (int box = 0; box <= 27; ++box) {
    if (frmPlotCollect->chkPlots(box).IsChecked()) return GeneratePlotCollection();
  }
  ShowMessage("No Plots Selected", Icon::Exclamation);
}

void frmPlotCollect_cmdCancel_Click(int) { UnloadForm(frmPlotCollect); }

}  // namespace tarnvik
