#include "core/frmmain.h"
#include "modelrun/results_test.h"
#include "results/viewers.h"

namespace tarnvik {
namespace {

using ResultForms = ResultsTest;

TEST_F(ResultForms, unloading_one_takes_the_others_with_it) {
  FormSlot* const family[] = {&frmOutput, &frmOutputData};
  for (FormSlot* first : family) {
    ASSERT_EQ(Scan(), Texts());
    EXPECT_EQ(OutputFormsOpen, kTrue);
    UnloadForm(*first);
    ExpectNoResults();
  }
  ASSERT_EQ(Scan(), Texts());
  UnloadForm(frmSTD);  // on its own it takes only its flags
  EXPECT_EQ(StdFileRead, kFalse);
  EXPECT_EQ(OutputFormsOpen, kTrue);
  EXPECT_TRUE(frmOutput.Loaded());
  frmOutput->SSTab1.SetTab(5);
  UnloadForm(frmOutput);
  EXPECT_EQ(frmOutput->SSTab1.Tab(), 0);
  EXPECT_EQ(OutputFormsOpen, kTrue);
}

TEST_F(ResultForms, keys_and_right_clicks_reach_the_grid_under_them) {
  Scan();
  Grid& totals = frmOutputData->MSFlexGrid(5);
  totals.OnKeyDown(5, 65, false);
  EXPECT_EQ(ActiveGrid, nullptr);
  totals.OnKeyDown(5, 65, true);
  totals.OnKeyDown(5, 67, true);
  EXPECT_EQ(host.clipboard.substr(0, 19), "1069.01\t154.353\t632");
  EXPECT_EQ(host.popped_up, std::vector<std::string>());
  for (Grid* grid : {&frmOutputData->MSFlexGrid4, &frmSTD->MSFlexGrid(1)}) {
    grid->OnRightClick(1);
    EXPECT_EQ(ActiveGrid, grid);
  }
  EXPECT_EQ(host.popped_up, (std::vector<std::string>{"mnuEdit", "mnuEdit"}));
}

TEST_F(ResultForms, every_control_lies_on_a_page_and_no_table_can_be_edited) {
  for (Form* form :
       {static_cast<Form*>(&*frmOutputData), static_cast<Form*>(&*frmSTD), static_cast<Form*>(&*frmOutput)}) {
    for (Control* control : form->Controls()) {
      const Control* outer = control;
      while (outer->Container()) {
        if (outer->Container()->Kind() == ControlKind::TabStrip) {
          EXPECT_LT(outer->Page(), static_cast<const TabStrip*>(outer->Container())->Tabs())
              << control->FullName();
        }
        outer = outer->Container();
      }
      EXPECT_EQ(outer->Name(), "SSTab1") << control->FullName();
      if (control->Kind() == ControlKind::Grid) {
        EXPECT_FALSE(static_cast<Grid*>(control)->Editable);
      }
    }
  }
}

TEST_F(ResultForms, first_option_of_each_plot_is_set) {
  int groups = 0;
  for (const Control* control : frmOutput->Controls()) {
    if (control->Kind() != ControlKind::OptionButton) continue;
    const bool first = control->Index() == 0;
    EXPECT_EQ(static_cast<const OptionButton*>(control)->Value(), first) << control->FullName();
    groups += first;
  }
  EXPECT_EQ(groups, 14);
  EXPECT_EQ(frmOutput->Option7(6).Caption(), "Exploitable Biomass by Yr");
  EXPECT_EQ(frmOutput->SSTab1.TabCaption(13), "Biomass Target / Limit Ratios");
  EXPECT_EQ(frmOutput->SSTab1.TabCaption(21), "Likelihood Components");
}

}  // namespace
}  // namespace tarnvik
