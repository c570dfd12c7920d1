// Reading the model's output files: one line of the file in a buffer, searched for keys and taken apart into
// words that go into cells as they are. A word that a line lacks is "".
//
// Everything works on File1, which is only read forward. Reading behind its end raises 62 "Input past end of
// file", a cell outside a table raises 9 "Subscript out of range".
#pragma once

#include <string_view>
#include <vector>

#include "platform/grid.h"

namespace tarnvik {

// The line in the buffer, and the next line into the buffer. Both views hold until File1 is closed.
std::string_view Line();
std::string_view ReadLine();
void SkipLines(int count);

// Keys are given in upper case and found anywhere in a line, whatever its case.
bool LineHolds(std::string_view key);
// Whether both keys are in the line, the first occurrence of the second behind that of the first.
bool LineHoldsInOrder(std::string_view first, std::string_view second);
// Each reads at least one line, until one holds the key (both keys) or the file ends; false if it ended.
bool FindKey(std::string_view key);
bool FindKeys(std::string_view first, std::string_view second);
bool FindKeysInOrder(std::string_view first, std::string_view second);

// Word n of a text, from 1. TokenNext goes on behind it.
std::string_view Word(std::string_view text, int n);
// What stands behind the first "=" of the line; the whole line when there is none.
std::string_view TextBehindEquals();

// Rows of a table in the order in which a file lists their values.
using RowList = std::vector<int>;
RowList RowsTo(int count);  // 1 to count

// Words of a text from word first on: each into one of the rows below base, in one column; or count of them
// into one row, every step-th column from col on.
void PutDown(Grid& grid, int base, int col, const RowList& rows, std::string_view text, int first = 1);
void PutAcross(Grid& grid, int row, int col, int count, std::string_view text, int first = 1, int step = 1);
// The same with the next line; ReadBlock reads a line for each of the rows below base, of NAges words from
// col on.
void ReadDown(Grid& grid, int base, int col, const RowList& rows, int first = 1);
void ReadAcross(Grid& grid, int row, int col, int count);
void ReadBlock(Grid& grid, int base, int col, const RowList& rows);

}  // namespace tarnvik
