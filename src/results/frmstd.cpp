#include "results/frmstd.h"

#include "core/globals.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"

namespace tarnvik {

namespace {

enum StdTab : int { kPagePoint, kPageDeviations, kPageRecruitPlot, kPageFPlot, kPageSelectivity };

const char* const kPointLabels[] = {"M",      "Mean Log Recruitment", "Log of Average F",
                                    "CPUE q", "CPUE exponent",        "Mean R"};
const char* const kHeadings[] = {"Parameter", "Value", "Standard Deviation"};

struct TablePlace {
  int page;
  const char* title;
};

// By the index of the table.
const TablePlace kTables[] = {
    {kPageDeviations, "Recruitment Deviations"},
    {kPageDeviations, "Fishing Mortality Deviations"},
    {kPageSelectivity, "Fishery Selectivity Parameters"},
    {kPageSelectivity, "Survey Parameters"},
    {kPagePoint, "M Multiplier"},
    {kPagePoint, "M at Age"},
};

}  // namespace

StdForm::StdForm() : Form("frmSTD", "Output Parameters") { Design(); }

void StdForm::Load() { frmSTD_Form_Load(); }
void StdForm::Unload() { frmSTD_Form_Unload(); }

void StdForm::Design() {
  SSTab1.SetPages({"Estimated Point Parameters, M", "Estimated Deviations  Data",
                   "Recruitment Deviations Plot", "Fishing Mortality Deviations Plot",
                   "Estimated Fishery Sel. / Survey Parameters"});
  FramePoint.SetCaption("Point Estimate Parameters");
  FramePoint.SetContainer(&SSTab1, kPagePoint);
  lblHeading.ForEach([this](Label& label) {
    label.SetCaption(kHeadings[label.Index()]);
    label.SetContainer(&FramePoint);
  });
  lbl1.ForEach([this](Label& label) {
    label.SetCaption(kPointLabels[label.Index()]);
    for (Label* one : {&label, &lblEst(label.Index()), &lblStd(label.Index())})
      one->SetContainer(&FramePoint);
  });
  MSFlexGrid.ForEach([this](Grid& grid) {
    const TablePlace& place = kTables[grid.Index()];
    Frame& frame = FrameGrid(grid.Index());
    frame.SetCaption(place.title);
    frame.SetContainer(&SSTab1, place.page);
    grid.SetContainer(&frame);
    grid.OnKeyDown = [](int index, int code, bool control) {
      ResultGridKeyDown(frmSTD->MSFlexGrid(index), code, control);
    };
    grid.OnRightClick = [](int index) { ResultGridRightClick(frmSTD->MSFlexGrid(index)); };
  });
  Chart19.SetContainer(&SSTab1, kPageRecruitPlot);
  Chart20.SetContainer(&SSTab1, kPageFPlot);
  DesignBands(*this, 1, cmdPlot19, SSTab1, kPageRecruitPlot);
  DesignBands(*this, 2, cmdPlot20, SSTab1, kPageFPlot);
  cmdPlot19.OnClick = frmSTD_cmdPlot19_Click;
  cmdPlot20.OnClick = frmSTD_cmdPlot20_Click;
}

void frmSTD_Form_Load() { frmSTD->SSTab1.SetTab(0); }

void frmSTD_Form_Unload() {
  StdFileRead = kFalse;
  ParFileRead = kFalse;
}

}  // namespace tarnvik
