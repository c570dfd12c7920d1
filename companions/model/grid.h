// A table of rows and columns, both from 0, stored row after row.
#pragma once

#include <vector>

namespace model {

template <class T>
struct Grid {
  int rows = 0;
  int columns = 0;
  std::vector<T> cells;

  Grid() = default;
  Grid(int nRows, int nColumns)
      : rows(nRows),
        columns(nColumns),
        cells(static_cast<std::size_t>(nRows) * static_cast<std::size_t>(nColumns)) {}

  T& operator()(int row, int column) { return cells[Place(row, column)]; }
  const T& operator()(int row, int column) const { return cells[Place(row, column)]; }

 private:
  std::size_t Place(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
           static_cast<std::size_t>(column);
  }
};

}  // namespace model
