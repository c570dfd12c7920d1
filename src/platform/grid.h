// The grid: a plain table of texts.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/control.h"

namespace tarnvik {

// No table of the program may hold more cells than this; what asks for more gets run-time error 7
// "Out of memory" instead of the machine's memory. The largest case that the ranges allow (100 years,
// 60 ages, 50 surveys) needs 1.3 million cells in its largest table.
inline constexpr long long kMaxTableCells = 3'000'000;

// Raises run-time error 7 when a table of that many cells is beyond the bound; the factors may be any
// numbers.
void CheckTableSize(long long a, long long b, long long c = 1);

// Rows and columns count from 0; row 0 is the header row. Every cell is a text. A row or column outside the
// table raises run-time error 9 "Subscript out of range".
class Grid : public Control {
 public:
  Grid(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::Grid, std::move(name), index) {}

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }
  // Cells that remain keep their texts and colours; added cells are empty.
  void SetRows(int rows) { Resize(rows, cols_); }
  void SetCols(int cols) { Resize(rows_, cols); }
  void Resize(int rows, int cols);

  const std::string& TextMatrix(int row, int col) const { return cells_[At(row, col)]; }
  void SetTextMatrix(int row, int col, std::string_view text) {
    cells_[At(row, col)].assign(text);
    MarkChanged();
  }
  void Clear();  // empties the text of every cell; the size and the colours stay
  // Grows with every Clear and every change of size: what stood in a cell before may stand elsewhere since.
  int Generation() const { return generation_; }

  // Display only. Widths and heights in twips; -1 is the control's own default, 0 hides the column or row.
  int ColWidth(int col) const;
  void SetColWidth(int col, int width);
  int RowHeight(int row) const;
  void SetRowHeight(int row, int height);
  Color CellBackColor(int row, int col) const;  // kWindowBackground where none was set
  Color CellForeColor(int row, int col) const;  // kBlack where none was set
  void SetCellColors(int row, int col, Color back, Color fore);
  Color BackColorSel = kBlue;  // of the selected range
  Color ForeColorSel = kWindowBackground;
  void SetFormatString(std::string_view format) { format_ = format; }
  const std::string& FormatString() const { return format_; }

  // Header rows and label columns that cannot be edited.
  int FixedRows = 1;
  int FixedCols = 1;
  int ReadOnlyCol = -1;  // a column of derived values among the others, -1 for none
  int ColsInView =
      0;  // display only: so many columns at the left stay in view, and never less than FixedCols
  // The current cell, the far end of the selected range, the first row in view below the fixed ones.
  int Row = 1;
  int Col = 1;
  int RowSel = 1;
  int ColSel = 1;
  int TopRow = 1;
  void SetSelection(int row, int col, int row_sel, int col_sel);
  void SetTopRow(int row);
  // Whether the user may type into cells, and whether one cell accepts typing.
  bool Editable = false;
  bool CellEditable(int row, int col) const {
    return Editable && row >= FixedRows && col >= FixedCols && col != ReadOnlyCol && row < rows_ &&
           col < cols_;
  }

  // Raised by the front ends only. Each cell of a block that the user pastes, fills or deletes begins to be
  // edited, as the current cell; the block's edit ends once, after its last cell: the handlers see to the
  // whole grid.
  Handler OnBeginEdit = nullptr;
  Handler OnEndEdit = nullptr;
  void (*OnKeyDown)(int index, int code, bool control) = nullptr;
  Handler OnRightClick = nullptr;

 private:
  std::size_t At(int row, int col) const {
    if (row < 0 || col < 0 || row >= rows_ || col >= cols_) throw RunTimeError(kErrSubscript);
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) + static_cast<std::size_t>(col);
  }
  struct CellColors {
    Color back = kWindowBackground;
    Color fore = kBlack;
  };
  // A table of this grid's cells refitted to another size; what remains is kept.
  template <class T>
  std::vector<T> Refitted(std::vector<T>& table, int rows, int cols) const;
  int rows_ = 2;
  int cols_ = 2;
  int generation_ = 0;
  std::vector<std::string> cells_ = std::vector<std::string>(4);
  std::map<int, int> col_widths_;
  std::map<int, int> row_heights_;
  std::vector<CellColors> colors_;  // of every cell, once one has been coloured; empty before
  std::string format_;
};

}  // namespace tarnvik
