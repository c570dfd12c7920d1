// What the parts of the data file's reader share, and the parameter file's with them.
#pragma once

#include <string>
#include <string_view>

#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"

namespace tarnvik {

// Thrown at a value that cannot be; ends the read with the message.
struct RefusedValue {
  std::string message;
  bool clears_input_valid = true;
};

// The words of one line, handed out one after the other; "" once they are used up.
class LineWords {
 public:
  explicit LineWords(std::string_view line) : line_(line) {}
  std::string_view Next() {
    const std::string_view word = begun_ ? TokenNext(line_) : TokenFirst(line_);
    begun_ = true;
    return word;
  }

 private:
  std::string_view line_;
  bool begun_ = false;
};

// A flag is set by a 1 and by no other number.
inline bool IsOne(std::string_view word) { return Val(word) == 1.0; }
inline const char* YesNo(bool flag) { return flag ? "y" : "n"; }

// The next line as the text of a field.
inline void ReadField(TextBox& field) { field.SetText(Trim(ReadDataLine())); }
// The words of the next line into one column of a grid, or one row of it.
void ReadColumn(Grid& grid, int col, int rows);
void ReadRow(Grid& grid, int row, int first_col, int cols);

// The file in its order, behind the dimensions: fishery; surveys; tables at age; all single settings. Each
// leaves alone what files of the version do not hold, or puts in its substitute. They raise RefusedValue and
// run-time errors.
void ReadFisheryLines(InputForm& form, double version);
void ReadSurveyLines(InputForm& form, double version);
void ReadBiologyLines(InputForm& form, double version);
void ReadSettingLines(InputForm& form, double version);

}  // namespace tarnvik
