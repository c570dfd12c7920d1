// What the two validators share: tests of a text, the words of a message, the report of a fault.
//
// A check returns true when all is well; at the first fault it shows the message and returns false. Messages
// are put together at a fault only: a clean case of any size costs no more than reading its cells.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "platform/control.h"
#include "platform/grid.h"

namespace tarnvik {

// Tests of the text of a cell or field; true means a fault. A text that begins with no number counts as 0.
using TextTest = bool (*)(const std::string& text);
bool Blank(const std::string& text);
bool Negative(const std::string& text);
bool NegativeOrBlank(const std::string& text);
bool NegativeOrNoNumber(const std::string& text);  // the whole text must be a number
bool NotAFraction(const std::string& text);        // below 0 or above 1
bool NotAnAgeCount(const std::string& text);       // below 1 or above NewNAges
bool NotYesOrNo(const std::string& text);          // the first letter is neither y nor n: "yes" passes
bool NotJustYOrN(const std::string& text);         // so are the first two together: "yes" fails

// A message with its placeholders filled: a "%" and a letter stand for a text. Line breaks stand as "\r\n".
struct Placeholder {
  char letter;
  std::string text;
};
std::string FillWords(std::string_view words, std::initializer_list<Placeholder> placeholders);

// Show frmInput or frmPin, select one of its tabs, show the warning. Always false: what a failed check
// returns.
bool InputFault(int tab, const std::string& message);
bool PinFault(int tab, const std::string& message);

// One text box of frmInput and what may be wrong with it.
struct FieldCheck {
  bool applies;
  const TextBox& field;
  TextTest faulty;
  const char* words;
};
bool CheckFields(int tab, std::span<const FieldCheck> checks);

// Cells of a grid of frmInput, from row 1 to the last.
enum class Columns { One, Ages, All };  // the first only, NewNAges of them, up to the last
struct Cells {
  int grid;
  int first_col;
  Columns columns;
};
constexpr Cells Column(int grid, int col) { return {grid, col, Columns::One}; }
constexpr Cells AgeColumns(int grid, int first_col) { return {grid, first_col, Columns::Ages}; }
constexpr Cells AllColumns(int grid, int first_col) { return {grid, first_col, Columns::All}; }

struct CellTest {
  TextTest faulty;
  const char* words;
};
// What may be wrong with cells; each column is gone through whole before the next. Placeholders of the words:
// %y text in column 0 of the row (a year, mostly), %r the row's number, %n the column's number among those
// checked (an age, mostly), %s the survey selected.
struct GridCheck {
  Cells cells;
  CellTest first;
  CellTest second = {nullptr, nullptr};  // made in each cell that passed the first
};
bool CheckGrid(int tab, const GridCheck& check);
bool CheckGrids(int tab, std::span<const GridCheck> checks);

}  // namespace tarnvik
