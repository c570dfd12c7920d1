// The small case cut to 1990 to 1994 and with a second selectivity period from 1992 on; its cells are typed.
#pragma once

#include <string>

#include "inputedit/small_case.h"

namespace tarnvik {

class PeriodCase : public SmallCase {
 protected:
  void SetUp() override {
    SmallCase::SetUp();
    Choose(frmInput->cmbNFYear, 1990);
    Choose(frmInput->cmbNXYear, 1994);
    Choose(frmInput->cmbSelPer, 2);
    Type(frmInput->ORVFlexGrid(8), 2, 1, "1992");
    host.messages.clear();
  }
  // A cell edited by the user, with the two events around it.
  static void Type(Grid& grid, int row, int col, const std::string& text) {
    ASSERT_TRUE(grid.CellEditable(row, col)) << grid.FullName();
    grid.SetSelection(row, col, row, col);
    if (grid.OnBeginEdit) grid.OnBeginEdit(grid.Index());
    grid.SetTextMatrix(row, col, text);
    if (grid.OnEndEdit) grid.OnEndEdit(grid.Index());
  }
};

}  // namespace tarnvik
