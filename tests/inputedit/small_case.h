// A small case on frmInput, made as a user makes one: by choosing on the General tab.
#pragma once

#include <string>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/gridtools.h"
#include "support/test_program.h"

namespace tarnvik {

inline void Choose(ComboBox& combo, int number) {
  for (int item = 0; item < combo.ListCount(); ++item) {
    if (combo.List(item) == NumberText(number)) return combo.UserSelect(item);
  }
  FAIL() << combo.Name() << " does not offer " << number;
}

// One row of a grid, its cells parted by "|".
inline std::string RowText(const Grid& grid, int row, int first_column = 0) {
  std::string text;
  for (int column = first_column; column < grid.Cols(); ++column) {
    if (column > first_column) text += '|';
    text += grid.TextMatrix(row, column);
  }
  return text;
}

inline std::string ColumnText(const Grid& grid, int column) {
  std::string text;
  for (int row = 1; row < grid.Rows(); ++row) text += (row > 1 ? "|" : "") + grid.TextMatrix(row, column);
  return text;
}

inline std::string ListText(const ComboBox& combo) {
  return combo.ListCount() == 0 ? "" : combo.List(0) + "-" + combo.List(combo.ListCount() - 1);
}

inline std::string Span(int first, int last) { return NumberText(first) + "-" + NumberText(last); }

// 1995 to 2004, 3 ages, 2 surveys, 1 period; the ranges are 1990 to 2010, 8 ages, 5 surveys.
class SmallCase : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    UnloadForm(frmPin);
    UnloadForm(frmInput);
    GPYearMin = 1990;
    GPYearMax = 2010;
    GPAgeMax = 8;
    GPSurveyMax = 5;
    Choose(frmInput->cmbNFYear, 1995);
    Choose(frmInput->cmbNXYear, 2004);
    Choose(frmInput->cmbNAges, 3);
    Choose(frmInput->cmbNIndex, 2);
    host.messages.clear();
  }

  // The user types a cell of the selected survey's grid 15 or 16.
  void TypeSurveyCell(int grid, int row, int column, const std::string& text) {
    frmInput->ORVFlexGrid(grid).SetTextMatrix(row, column, text);
    frmInput_ORVFlexGrid_event1(grid);
  }
};

}  // namespace tarnvik
