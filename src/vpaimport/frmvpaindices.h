// frmVPAIndices "Select VPA Indices": which indices of a VPA file make which survey of the new case.
#pragma once

#include "platform/form.h"
#include "platform/grid.h"
#include "platform/lists.h"

namespace tarnvik {

inline constexpr int kTitleColumn = 1;  // of ORVFlexGrid1; column 0 holds the survey's number

struct IndicesForm : Form {
  IndicesForm();
  void Load() override;    // frmVPAIndices_Form_Load
  void Unload() override;  // frmVPAIndices_Form_Unload

  Label Label1{this, "Label1"};             // "VPA Input File"
  Label lblVPAFile{this, "lblVPAFile"};     // path of the VPA file
  Label Label2{this, "Label2"};             // heads lstVPA
  ListBox lstVPA{this, "lstVPA"};           // indices not yet assigned
  Label Label3{this, "Label3"};             // heads lstTARNVIK
  ListBox lstTARNVIK{this, "lstTARNVIK"};   // the surveys: see survey_assignment.h
  Label Label4{this, "Label4"};             // "Number of Surveys"
  ComboBox cmbNSurv{this, "cmbNSurv"};      // 1 to 15
  Label Label5{this, "Label5"};             // heads ORVFlexGrid1
  Grid ORVFlexGrid1{this, "ORVFlexGrid1"};  // a row for each survey: number, title
  Label lblHelp{this, "lblHelp"};           // how to assign an index
  CommandButton cmdImport{this, "cmdImport"};
  CommandButton cmdCancel{this, "cmdCancel"};

  int CurrentNSurv = 0;  // surveys that the lists hold now
  int DragSource = -1;   // entry of lstTARNVIK where the mouse button went down, -1 for none
};

inline FormOf<IndicesForm> frmVPAIndices{"frmVPAIndices"};

void frmVPAIndices_Form_Load();
void frmVPAIndices_Form_Unload();

// Fits ORVFlexGrid1 and lstTARNVIK to the number of surveys chosen. Nothing that was assigned is lost.
void frmVPAIndices_cmbNSurv_Click(int);
// A title has been changed: the headings follow.
void frmVPAIndices_ORVFlexGrid1_EndEdit(int);

// A click takes the current entry in hand, which the pointer's shape tells; a second one lets it go.
void frmVPAIndices_lstVPA_Click(int);
// Puts down what is in hand.
void frmVPAIndices_lstTARNVIK_Click(int);
void frmVPAIndices_lstTARNVIK_DblClick(int);
// A drag within the list. Headings and empty entries cannot be dragged.
void frmVPAIndices_lstTARNVIK_MouseDown(int entry);
void frmVPAIndices_lstTARNVIK_MouseUp(int entry);

// Writes the list of surveys and closes the dialog, once at least one index is assigned.
void frmVPAIndices_cmdImport_Click(int);
void frmVPAIndices_cmdCancel_Click(int);

}  // namespace tarnvik
