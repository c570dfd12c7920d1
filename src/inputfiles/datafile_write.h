// What the parts of the data file's writer share, and the parameter file's with them. Lists end in their
// separator: the model reads on behind it.
#pragma once

#include <string_view>

#include "core/text.h"
#include "inputedit/frminput.h"
#include "platform/files.h"

namespace tarnvik {

inline constexpr std::string_view kOneBlank = " ";
inline constexpr std::string_view kTwoBlanks = "  ";

inline void PrintItem(OutputFile& file, std::string_view value, std::string_view separator) {
  file.Print(value);
  file.Print(separator);
}

inline void PrintFlag(OutputFile& file, bool flag) { file.Print(flag ? "1 " : "0 "); }

// Exactly "y" or "Y" around blanks; "yes" is no yes.
inline bool IsYes(std::string_view cell) {
  cell = Trim(cell);
  return cell == "y" || cell == "Y";
}

// Begins with a "y" behind blanks; "yes" is one.
inline bool BeginsYes(std::string_view cell) {
  cell = Trim(cell);
  return !cell.empty() && (cell[0] == 'y' || cell[0] == 'Y');
}

// A column of a grid from row 1 on, as one line.
void WriteColumn(OutputFile& file, const Grid& grid, int col, int last_row, std::string_view separator);
// The marks of a check list, as one line.
void WriteMarks(OutputFile& file, const ListBox& list);
// " (<title>,<title>)" behind a comment, and the line's end.
void EndWithTitles(OutputFile& file, std::string_view comment);

// The file in its order: dimensions and fishery data; surveys; biology; all single settings.
void WriteFisheryLines(OutputFile& file, InputForm& form);
void WriteSurveyLines(OutputFile& file, InputForm& form);
void WriteBiologyLines(OutputFile& file, InputForm& form);
void WriteSettingLines(OutputFile& file, InputForm& form);

}  // namespace tarnvik
