// The tables of results: their sizes, headings, labels and cells without a value.
#pragma once

#include "platform/grid.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"

namespace tarnvik {

// frmOutputData.MSFlexGrid(table) and frmSTD.MSFlexGrid(table).
Grid& ResultTable(int table);
Grid& ParameterTable(int table);

// Gives a table its size from the dimensions in force, its headings and labels, and "N/A" where the model may
// give no value; everything else in it is emptied. Loads the form. The headings of ResultTable(14) are left
// to the scan. PrepareResultTable(2), (3) and (4) also fill the jump list of the table, which comes to its
// first entry. Raise 7 "Out of memory" beyond the bound of a table.
Grid& PrepareResultTable(int table);
Grid& PrepareParameterTable(int table);
void PrepareLikelihoodTables();  // MSFlexGrid1 and MSFlexGrid2
void PrepareErrorTables();       // MSFlexGrid3, MSFlexGrid4 and MSFlexGrid5

// "N/A" in the data rows of every step-th column from first on.
void MarkNotAvailable(Grid& grid, int first, int step = 1);

// Recruitment is estimated from RecYr to NXYear, from years before the data on where RecYr is lower than
// NFYear.
int RecruitYears();

}  // namespace tarnvik
