// The case state: everything module-wide, one instance.
//
// There is no document behind the forms: their fields are the working data, and the values here say what is
// open, how large it is and where it lies. Flags are 16-bit words, -1 true and 0 false.
#pragma once

#include <cstdint>
#include <string>

#include "core/tables.h"

namespace tarnvik {

inline constexpr std::int16_t kTrue = -1;
inline constexpr std::int16_t kFalse = 0;
constexpr std::int16_t Flag(bool condition) { return condition ? kTrue : kFalse; }

// The sentinel of the whole case: no such file, no such description.
inline constexpr const char* kNoneSelected = "None Selected";
inline bool IsNone(const std::string& text) { return text.empty() || text == kNoneSelected; }
// A value that the model did not give.
inline constexpr const char* kNotAvailable = "N/A";

// --- Paths. At save time the captions of frmInput's lblCTL, lblFile(0) and lblFile(1) are the truth; writers
// copy them here first.
inline std::string CtlFilePath;     // control file
inline std::string PinFilePath;     // parameter file
inline std::string DatFilePath;     // data file
inline std::string FileViewerPath;  // program for viewing result files; "" for the built-in viewer
inline std::string ReportPath;      // report of the case; like the next two, derived from CtlFilePath
inline std::string StdPath;         // standard deviations
inline std::string ParPath;         // output parameters

// --- General parameter ranges: what the General tab offers. Kept in the settings file.
inline std::int16_t GPYearMin = 0;
inline std::int16_t GPYearMax = 0;
inline std::int16_t GPAutoYear = 0;  // flag: the last year follows the calendar
inline std::int16_t GPAgeMax = 0;
inline std::int16_t GPSurveyMax = 0;

// --- Dimensions in force.
inline std::int16_t NFYear = 0;          // first year
inline std::int16_t NXYear = 0;          // last year
inline std::int16_t NYears = 0;          // NXYear - NFYear + 1
inline std::int16_t NAges = 0;           // ages 1 to NAges, the last a plus group
inline std::int16_t RecYr = 0;           // first year of the recruitment deviations
inline std::int16_t NSelPer = 0;         // fishery selectivity periods
inline std::int16_t NIndex = 0;          // surveys
inline std::int16_t FishAgeNYears = 0;   // rows now in ORVFlexGrid(1), which may be condensed
inline std::int16_t FishCPUENYears = 0;  // rows now in ORVFlexGrid(5), likewise

// --- Dimensions wanted: written by a reader or a combo box before a change is committed to those above.
inline std::int16_t NewNFYear = 0;
inline std::int16_t NewNXYear = 0;
inline std::int16_t NewNYears = 0;
inline std::int16_t NewNAges = 0;
inline std::int16_t NewRecYr = 0;
inline std::int16_t NewNSelPer = 0;
inline std::int16_t NewNIndex = 0;

// --- Surveys, numbered from 1. Only the selected one stands in ORVFlexGrid(15) and (16).
inline Array1<std::int16_t> SurvFYear;   // first year of the survey's table
inline Array1<std::int16_t> SurvXYear;   // last year
inline Array1<std::int16_t> SurvNYears;  // SurvXYear - SurvFYear + 1
inline Array1<std::string> SurvTitle;    // "Survey <i>" unless the user gave one
inline Array1<char> SurvParametric;      // whether the survey's index is fitted (chkSurvFit)
// Row p stands for year NFYear + p - 1; columns are StoreColumn.
inline SurveyTable<std::string> SurvYearFit;  // the index
inline SurveyTable<std::string> SurvAgeFit;   // the age composition
enum StoreColumn : int {
  kStoreYear = 0,
  kStoreValue = 1,       // of SurvYearFit the index value, of SurvAgeFit the number of samples
  kStoreFit = 2,         // "y" or "n": whether the year is fitted
  kStoreBeforeAges = 2,  // of SurvAgeFit: the share of age a stands in column kStoreBeforeAges + a
};
// The row of a survey's first year.
inline int StoreRow(int survey) { return SurvFYear(survey) - NFYear + 1; }

// --- Flags.
inline std::int16_t ExitPrompt = 0;   // ask for save when a form closes
inline std::int16_t FilesSaved = 0;   // the last writer ended without error
inline std::int16_t InputValid = 0;   // the last validation passed
inline std::int16_t LoadingForm = 0;  // code is filling controls; handlers rest. ReadDataFile sets it and may
                                      // leave it set when it fails: the next read or load clears it
inline std::int16_t OutputFormsOpen = 0;   // frmOutput or frmOutputData is loaded
inline std::int16_t ModelRunOK = 0;        // the last run of the model left all it should
inline std::int16_t CtlFileOpen = 0;       // a control file was verified for the case
inline std::int16_t PinFileOpen = 0;       // frmPin holds a parameter file
inline std::int16_t DatFileOpen = 0;       // frmInput holds a data file
inline std::int16_t CaseOpenPending = 0;   // written by the open flows; nothing tests it
inline std::int16_t PlotInputOpen = 0;     // frmPlotInput is loaded
inline std::int16_t StdFileRead = 0;       // the standard deviations have been scanned
inline std::int16_t ParFileRead = 0;       // the output parameters have been scanned instead
inline std::int16_t BasicParmsMatch = 0;   // the last result of CompareBasicParms
inline std::int16_t PeriodEditWarned = 0;  // the warning about selectivity periods was shown since the start

// --- Plot selection: hands a choice to a plot routine.
inline std::int16_t PlotIndex = 0;
inline std::int16_t PlotSeriesSel[6] = {};  // elements 1 to 5

// --- Left by the report scanner for the plots.
inline SurveyTable<std::int16_t> SurveyIndexYears;  // (survey, 0, item): the years listed for each survey
inline Array1<std::int16_t> FishAgeYears;           // the years of the fishery age data

// Everything above as before the program's start. Forms are no concern of it.
void ResetGlobals();

}  // namespace tarnvik
