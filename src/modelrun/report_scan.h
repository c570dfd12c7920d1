// The parts of the report scan that are not plain rows of its table of sections. Each reads on from the line
// in the buffer and fills its tables; all may raise what report_reader.h raises, which ends in the trap of
// ScanReportFile.
#pragma once

#include <string>
#include <string_view>

#include "modelrun/report_reader.h"

namespace tarnvik {

// "Biomass" or "Numbers": the kind of index of the last survey, as the report writes it. Set by
// ScanSurveyIndices.
extern std::string SurveyTypeWord;

// Says "Unable to Retrieve " and what of a section that is missing, and raises 50000.
[[noreturn]] void FailToRetrieve(std::string_view what);

// The optional CPUE series: MSFlexGrid(18), the CPUE page of frmOutput, and all captions that name the
// series.
void ScanCpue();
// Per survey: SurveyIndexYears and MSFlexGrid(2); per survey: MSFlexGrid(17) and MSFlexGrid(4).
void ScanSurveyIndices();
void ScanSurveyAges();

// The rows of the tables by year that belong to the years of the fishery ages (FishAgeYears) or of a survey
// (SurveyIndexYears), in the order of the report's list.
RowList FisheryAgeRows();
RowList SurveyRows(int survey);

// Initial equilibrium F, targets and limits, each of which may be absent: lblRatio(6) to (10), MSFlexGrid(10)
// to (13).
void ScanReferencePoints();
void ScanFisherySelectivity();  // MSFlexGrid(14) and its headings
void ScanSurveySelectivity();   // MSFlexGrid(15); the key line is that of survey 1
void ScanLikelihood();          // lblSumm(1) to (6), MSFlexGrid1, MSFlexGrid2
void ScanErrors();              // lblSumm(22) to (25), MSFlexGrid3
void ScanFisheryAgeErrors();    // MSFlexGrid4; the years stand in the key line
void ScanSurveyAgeErrors();     // MSFlexGrid5; the key line is that of survey 1
// Natural mortality and the unfished recruitment, each of which may be absent: frmSTD and lblUnfished(0).
void ScanNaturalMortality();

}  // namespace tarnvik
