#include "vpaimport/frmvpaindices.h"

#include <string>

#include "core/utils.h"
#include "platform/host.h"
#include "vpaimport/survey_assignment.h"
#include "vpaimport/vpa_import.h"

namespace tarnvik {

namespace {

constexpr int kMostSurveys = 15;

// A row for each survey: its number, and a title if it has none yet.
void FitTitles(int surveys) {
  Grid& grid = frmVPAIndices->ORVFlexGrid1;
  grid.SetRows(surveys + 1);
  for (int survey = 1; survey <= surveys; ++survey) {
    const std::string number = std::to_string(survey);
    grid.SetTextMatrix(survey, 0, number);
    if (grid.TextMatrix(survey, kTitleColumn).empty()) {
      grid.SetTextMatrix(survey, kTitleColumn, "Survey " + number);
    }
  }
}

bool IndexInHand() { return MousePointer() == Pointer::IndexInHand; }

}  // namespace

IndicesForm::IndicesForm() : Form("frmVPAIndices", "Select VPA Indices") {
  Label1.SetCaption("VPA Input File");
  Label2.SetCaption("VPA Indices");
  Label3.SetCaption("Tarnvik Surveys");
  Label4.SetCaption("Number of Surveys");
  Label5.SetCaption("Survey Titles");
  lblHelp.SetCaption(
      "Click an index, then a place among the surveys. Drag an index to move it; double-click it to give it "
      "back.");
  cmdImport.SetCaption("Import");
  cmdCancel.SetCaption("Cancel");
  ORVFlexGrid1.Editable = true;
  cmbNSurv.OnClick = frmVPAIndices_cmbNSurv_Click;
  ORVFlexGrid1.OnEndEdit = frmVPAIndices_ORVFlexGrid1_EndEdit;
  lstVPA.OnClick = frmVPAIndices_lstVPA_Click;
  lstTARNVIK.OnClick = frmVPAIndices_lstTARNVIK_Click;
  lstTARNVIK.OnDblClick = frmVPAIndices_lstTARNVIK_DblClick;
  lstTARNVIK.OnMouseDown = frmVPAIndices_lstTARNVIK_MouseDown;
  lstTARNVIK.OnMouseUp = frmVPAIndices_lstTARNVIK_MouseUp;
  cmdImport.OnClick = frmVPAIndices_cmdImport_Click;
  cmdCancel.OnClick = frmVPAIndices_cmdCancel_Click;
}

void IndicesForm::Load() { frmVPAIndices_Form_Load(); }
void IndicesForm::Unload() { frmVPAIndices_Form_Unload(); }

void frmVPAIndices_Form_Load() {
  IndicesForm& form = *frmVPAIndices;
  form.ORVFlexGrid1.SetTextMatrix(0, 0, "Survey #");
  form.ORVFlexGrid1.SetTextMatrix(0, kTitleColumn, "Title");
  form.cmbNSurv.FillNumbers(1, kMostSurveys);
  form.cmbNSurv.SetListIndex(0);
}

void frmVPAIndices_Form_Unload() { SetMousePointer(Pointer::Default); }

void frmVPAIndices_cmbNSurv_Click(int) {
  IndicesForm& form = *frmVPAIndices;
  const int surveys = form.cmbNSurv.ListIndex() + 1;
  if (surveys == form.CurrentNSurv || surveys == 0) return;
  FitTitles(surveys);
  if (form.lstTARNVIK.ListCount() == 0) {
    AddSurveys(1, surveys);
    form.lstTARNVIK.UserPoint(0);
  } else if (surveys > form.CurrentNSurv) {
    AddSurveys(form.CurrentNSurv + 1, surveys);
  } else {
    DropSurveys(surveys);
  }
  RewriteHeadings();  // an empty title may just have been given one
  form.DragSource = -1;
  form.CurrentNSurv = surveys;
}

void frmVPAIndices_ORVFlexGrid1_EndEdit(int) { RewriteHeadings(); }

void frmVPAIndices_lstVPA_Click(int) {
  const bool take = !IndexInHand() && frmVPAIndices->lstVPA.ListIndex() >= 0;
  SetMousePointer(take ? Pointer::IndexInHand : Pointer::Default);
}

void frmVPAIndices_lstTARNVIK_Click(int) {
  IndicesForm& form = *frmVPAIndices;
  const int entry = form.lstTARNVIK.ListIndex();
  if (!IndexInHand() || entry < 0) return;
  if (form.lstVPA.ListIndex() >= 0) AssignIndex(entry);
  form.DragSource = -1;  // the press that began this click is no drag
  SetMousePointer(Pointer::Default);
}

void frmVPAIndices_lstTARNVIK_DblClick(int) {
  GiveIndexBack(frmVPAIndices->lstTARNVIK.ListIndex());
  frmVPAIndices->DragSource = -1;
}

void frmVPAIndices_lstTARNVIK_MouseDown(int entry) { frmVPAIndices->DragSource = entry; }

void frmVPAIndices_lstTARNVIK_MouseUp(int) {
  IndicesForm& form = *frmVPAIndices;
  const int from = form.DragSource;
  const int to = form.lstTARNVIK.ListIndex();
  form.DragSource = -1;
  if (from < 0 || from >= form.lstTARNVIK.ListCount() || to == from) return;
  if (to >= 0 && IsIndex(from)) {
    MoveIndex(from, to);
  } else {
    form.lstTARNVIK.UserPoint(from);
  }
}

void frmVPAIndices_cmdImport_Click(int) {
  IndicesForm& form = *frmVPAIndices;
  if (form.lstTARNVIK.ListCount() <= 2 * form.CurrentNSurv) {
    ShowMessage("Please Assign at Least One VPA Index to a Tarnvik Survey", Icon::Information);
    return;
  }
  WriteSurveyList(DirOfPath(form.lblVPAFile.Caption()));
  UnloadForm(frmVPAIndices);
}

void frmVPAIndices_cmdCancel_Click(int) { UnloadForm(frmVPAIndices); }

}  // namespace tarnvik
