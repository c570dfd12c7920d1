#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/grids.h"
#include "inputedit/surveys.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

class FormsTest : public ProgramTest {};

TEST_F(FormsTest, every_control_lies_on_a_page_and_says_what_it_is) {
  const std::string bare_frames = " Frame1 Frame27 frmSurvInfo Frame11 Frame25 ";
  for (Form* form : {static_cast<Form*>(&*frmInput), static_cast<Form*>(&*frmPin)}) {
    for (const Control* control : form->Controls()) {
      if (control->Kind() == ControlKind::TabStrip) continue;
      const Control* outermost = control;
      while (outermost->Container()) outermost = outermost->Container();
      EXPECT_EQ(outermost->Name(), "SSTab1") << control->FullName();
      const bool bare = bare_frames.find(" " + control->FullName() + " ") != std::string::npos;
      EXPECT_EQ(control->Caption().empty(), bare) << control->FullName();
    }
  }
}

TEST_F(FormsTest, a_fresh_form_shows_what_its_options_ask_for) {
  // Everything that rests while each option group stands on its first option and no box is checked.
  const std::string disabled =
      " cmdExpandGrd(0) cmdExpandGrd(1) txtFishSelAge opFishSelNonPar(0) opFishSelNonPar(1) "
      "chkEstimateFishGamma"
      " chkFishSelNonParEst chkSurvSelParEst(0) chkSurvSelNonParEst lblNBoot lblBootSeed lblPhaseFishGamma"
      " lblPhaseFishBeta lblPhaseFishA50 lblPhaseFSelNonPar lblEstimate(0) lblEstimate(1) lblEstimate(2)"
      " lblEstimate(3) lblEstimate(4) lblEstimate(5) lblEstimate(10) lblEstimate(11) lblEstimate(12)"
      " lblEstimate(13) lblEstimate(14) lblEstimate(15) lblSurvSelParEst(0) lblSurvSelParEst(1)"
      " lblSurvSelParEst(2) lblSurvSelNonParEst lblEstSurvSample lblPhaseLogRec lblPhaseRecDev lblPhaseFMort"
      " lblPhaseFMortDev lblShrink lblShrinkFactor ";
  const std::string hidden =
      " txtFishSelAge cmbMType txtNBoot txtBootSeed txtPhaseFishGamma txtPhaseFishBeta txtPhaseFishA50"
      " txtPhaseFSelNonPar txtEstimate(0) txtEstimate(1) txtEstimate(2) txtEstimate(3) txtEstimate(4)"
      " txtEstimate(5) txtEstimate(10) txtEstimate(11) txtEstimate(12) txtEstimate(13) txtEstimate(14)"
      " txtEstimate(15) txtSurvSelParEst(0) txtSurvSelParEst(1) txtSurvSelParEst(2) txtSurvSelNonParEst"
      " txtEstSurvSample txtPhaseLogRec txtPhaseRecDev txtPhaseFMort txtPhaseFMortDev txtShrink "
      "txtShrinkFactor ";
  for (const Control* control : frmInput->Controls()) {
    const std::string word = " " + control->FullName() + " ";
    EXPECT_EQ(control->Enabled(), disabled.find(word) == std::string::npos) << word;
    EXPECT_EQ(control->Visible(), hidden.find(word) == std::string::npos) << word;
    if (control->Kind() == ControlKind::OptionButton) {
      EXPECT_EQ(static_cast<const OptionButton*>(control)->Value(), control->Index() == 0) << word;
    }
  }
}

TEST_F(FormsTest, the_first_load_offers_the_ranges_and_commits_them) {
  EXPECT_EQ(LoadingForm, kFalse);
  EXPECT_EQ(NFYear, 1900);
  EXPECT_EQ(NXYear, 2026);
  EXPECT_EQ(NYears, 127);
  EXPECT_EQ(NAges, 1);
  EXPECT_EQ(NIndex, 1);
  EXPECT_EQ(NSelPer, 1);
  EXPECT_EQ(RecYr, 1900);
  EXPECT_EQ(FishAgeNYears, 127);
  EXPECT_EQ(SurvTitle(1), "Survey 1");
  EXPECT_EQ(SurvYearFit(1, 0, 127), "2026");
  EXPECT_EQ(SurvAgeFit(1, 0, 1), "1900");
  EXPECT_EQ(frmInput->cmbNAges.ListCount(), 60);
  EXPECT_EQ(frmInput->cmbMType.Text(), "Use Lognormal Prior");
  EXPECT_EQ(frmInput->cmbSurvXYear.Text(), "2026");
  EXPECT_EQ(frmInput->lblSurvTitle.Caption(), "Survey 1");
  EXPECT_EQ(frmInput->ORVFlexGrid(16).ColWidth(2), 0);
  EXPECT_EQ(frmInput->ORVFlexGrid(5).ColWidth(2), 0);
  EXPECT_TRUE(frmInput->lstCPUEages.Selected(0));
  EXPECT_EQ(frmInput->lblFile(1).ForeColor(), kBlue);
  ASSERT_TRUE(frmPin.Loaded());
  EXPECT_EQ(frmPin->ORVFlexGrid1(0).Rows(), 128);
  EXPECT_EQ(frmPin->ORVFlexGrid1(7).Rows(), 128);
}

TEST_F(FormsTest, a_form_loaded_anew_shows_the_paths_in_force) {
  UnloadForm(frmInput);
  CtlFilePath = "case.ctl";
  PinFilePath = kNoneSelected;
  DatFilePath.clear();
  EXPECT_EQ(frmInput->lblCTL.Caption(), "case.ctl");
  EXPECT_EQ(frmInput->lblCTL.ForeColor(), kBlue);
  for (const int file : {0, 1}) {
    EXPECT_EQ(frmInput->lblFile(file).Caption(), kNoneSelected);
    EXPECT_EQ(frmInput->lblFile(file).ForeColor(), kRed);
  }
}

TEST_F(FormsTest, a_load_that_fails_does_not_leave_the_handlers_resting) {
  UnloadForm(frmInput);
  GPYearMin = -32000;
  GPYearMax = 32000;
  EXPECT_THROW(frmInput->SSTab1.SetTab(0), RunTimeError);
  EXPECT_EQ(LoadingForm, kFalse);
  GPYearMin = 1900;
  GPYearMax = 2026;
  UnloadForm(frmInput);
}

TEST_F(FormsTest, either_form_may_be_the_first_to_load) {
  UnloadForm(frmInput);
  UnloadForm(frmPin);
  ActivateForm(frmPin);
  EXPECT_TRUE(frmInput.Loaded());
  EXPECT_EQ(frmPin->ORVFlexGrid1(2).RowHeight(1), 0);
  EXPECT_EQ(frmPin->ORVFlexGrid1(7).Cols(), 2);
}

TEST_F(FormsTest, users_reach_what_lies_in_visible_frames_and_type_what_is_not_derived) {
  EXPECT_TRUE(frmPin->ORVFlexGrid1(2).Reachable());
  EXPECT_FALSE(frmPin->ORVFlexGrid1(4).Reachable());
  EXPECT_FALSE(frmPin->ORVFlexGrid1(6).Reachable());
  frmInput->opFSelModel(1).UserChoose();
  frmInput->opSurvSelModel(1).UserChoose();
  EXPECT_FALSE(frmPin->ORVFlexGrid1(2).Reachable());
  EXPECT_TRUE(frmPin->ORVFlexGrid1(4).Reachable());
  EXPECT_TRUE(frmPin->ORVFlexGrid1(6).Reachable());
  const struct {
    int grid, row, col;
    bool editable;
  } cells[] = {{3, 1, 0, true},  {3, 0, 0, false}, {8, 1, 1, true},  {8, 1, 2, false},
               {0, 1, 0, false}, {0, 1, 1, true},  {16, 1, 2, true}, {101, 1, 1, true}};
  for (const auto& cell : cells) {
    EXPECT_EQ(CaseGrid(cell.grid).CellEditable(cell.row, cell.col), cell.editable)
        << cell.grid << " " << cell.row << " " << cell.col;
  }
}

TEST_F(FormsTest, each_button_and_list_reaches_its_handler) {
  for (const Control* control : frmInput->Controls()) {
    const bool acts = control->Kind() == ControlKind::CommandButton ||
                      (control->Kind() == ControlKind::CheckBox && control->Name() != "chkSmooth") ||
                      (control->Kind() == ControlKind::ComboBox && control->Name() != "cmbRefYr" &&
                       control->Name() != "cmbMType") ||
                      (control->Kind() == ControlKind::OptionButton && control->Name() != "opCPUEtype") ||
                      control->Name() == "lblSurvTitle" || control->Name() == "listSurvSample";
    EXPECT_EQ(control->OnClick != nullptr, acts) << control->FullName();
  }
}

}  // namespace
}  // namespace tarnvik
