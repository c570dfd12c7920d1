// A new case from the input file of a VPA. Two programs beside this one do the converting: scanvpasurvey.exe
// lists the survey indices of the file, the user assigns them to surveys, and vpa2tarnvik.exe writes the
// three files of the case.
#pragma once

#include <string>

namespace tarnvik {

// Asks for the VPA file and goes all the way to the open case. Shows what fails; the case that is open stays
// until the files of the new one are there. Sets ModelRunOK, CaseOpenPending and whatever ReadControlFile
// sets. Moves the current folder to the VPA file's. A run-time error ends it without a message.
void ImportVpa();

// Fills lstVPA from the list of indices in VpaDir, which is "" or ends in a separator. ModelRunOK is true
// only when all entries have been read; it is not touched otherwise. A list without indices is deleted with a
// message; an error is shown. frmVPAIndices is unloaded in both cases.
void LoadVpaList(const std::string& VpaDir);

// Writes the assignment that stands in lstTARNVIK, with the titles of ORVFlexGrid1, to the list of surveys in
// VpaDir. Surveys without an index are left out. An error is shown, and no list is left behind.
void WriteSurveyList(const std::string& VpaDir);

}  // namespace tarnvik
