#include "platform/grid.h"

#include <algorithm>

namespace tarnvik {

void CheckTableSize(long long a, long long b, long long c) {
  const long long factors[] = {a, b, c};
  long long cells = 1;
  for (long long factor : factors) {
    if (factor > kMaxTableCells) throw RunTimeError(kErrOutOfMemory);
    cells *= std::max(factor, 0LL);
    if (cells > kMaxTableCells) throw RunTimeError(kErrOutOfMemory);
  }
}

template <class T>
std::vector<T> Grid::Refitted(std::vector<T>& table, int rows, int cols) const {
  const auto size = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
  if (cols == cols_) {
    table.resize(size);
    return std::move(table);
  }
  std::vector<T> refitted(size);
  const auto kept_rows = static_cast<std::size_t>(std::min(rows, rows_));
  const auto kept_cols = static_cast<std::size_t>(std::min(cols, cols_));
  for (std::size_t r = 0; r < kept_rows; ++r) {
    for (std::size_t c = 0; c < kept_cols; ++c) {
      refitted[r * static_cast<std::size_t>(cols) + c] =
          std::move(table[r * static_cast<std::size_t>(cols_) + c]);
    }
  }
  return refitted;
}

void Grid::Resize(int rows, int cols) {
  if (rows < 0 || cols < 0) throw RunTimeError(kErrInvalidProperty);
  if (rows == rows_ && cols == cols_) return;
  CheckTableSize(rows, cols);
  cells_ = Refitted(cells_, rows, cols);
  if (!colors_.empty()) colors_ = Refitted(colors_, rows, cols);
  std::erase_if(col_widths_, [&](const auto& w) { return w.first >= cols; });
  std::erase_if(row_heights_, [&](const auto& h) { return h.first >= rows; });
  rows_ = rows;
  cols_ = cols;
  ++generation_;
  MarkChanged();
}

void Grid::Clear() {
  for (std::string& cell : cells_) cell.clear();
  ++generation_;
  MarkChanged();
}

namespace {

int SizeOrDefault(const std::map<int, int>& sizes, int at) {
  const auto found = sizes.find(at);
  return found == sizes.end() ? -1 : found->second;
}

}  // namespace

int Grid::ColWidth(int col) const {
  if (col < 0 || col >= cols_) throw RunTimeError(kErrSubscript);
  return SizeOrDefault(col_widths_, col);
}

void Grid::SetColWidth(int col, int width) {
  if (col < 0 || col >= cols_) throw RunTimeError(kErrSubscript);
  col_widths_[col] = width;
  MarkChanged();
}

int Grid::RowHeight(int row) const {
  if (row < 0 || row >= rows_) throw RunTimeError(kErrSubscript);
  return SizeOrDefault(row_heights_, row);
}

void Grid::SetRowHeight(int row, int height) {
  if (row < 0 || row >= rows_) throw RunTimeError(kErrSubscript);
  row_heights_[row] = height;
  MarkChanged();
}

Color Grid::CellBackColor(int row, int col) const {
  const std::size_t at = At(row, col);
  return colors_.empty() ? CellColors{}.back : colors_[at].back;
}

Color Grid::CellForeColor(int row, int col) const {
  const std::size_t at = At(row, col);
  return colors_.empty() ? CellColors{}.fore : colors_[at].fore;
}

void Grid::SetCellColors(int row, int col, Color back, Color fore) {
  const std::size_t at = At(row, col);
  if (colors_.empty()) colors_.resize(cells_.size());
  colors_[at] = {back, fore};
  MarkChanged();
}

void Grid::SetSelection(int row, int col, int row_sel, int col_sel) {
  At(row, col);
  At(row_sel, col_sel);
  Row = row;
  Col = col;
  RowSel = row_sel;
  ColSel = col_sel;
  MarkChanged();
}

void Grid::SetTopRow(int row) {
  At(row, 0);
  TopRow = row;
  MarkChanged();
}

}  // namespace tarnvik
