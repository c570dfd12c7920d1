// Arrays of the case state: numbered from 1, with checked indices.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/grid.h"
#include "platform/runtime_error.h"

namespace tarnvik {

// Elements 1 to Size(). An index outside raises 9 "Subscript out of range".
template <class T>
class Array1 {
 public:
  int Size() const { return static_cast<int>(items_.size()); }
  void ReDim(int size) { items_.assign(Checked(size), T{}); }
  void ReDimPreserve(int size) { items_.resize(Checked(size)); }
  T& operator()(int i) { return items_[At(i)]; }
  const T& operator()(int i) const { return items_[At(i)]; }

 private:
  static std::size_t Checked(int size) {
    CheckTableSize(size, 1);
    return static_cast<std::size_t>(std::max(size, 0));
  }
  std::size_t At(int i) const {
    if (i < 1 || i > Size()) throw RunTimeError(kErrSubscript);
    return static_cast<std::size_t>(i - 1);
  }
  std::vector<T> items_;
};

// A three-index table: survey 1 to Surveys(), column 0 to LastColumn(), row 1 to Rows(). Kept row by row,
// since files and grids run through it that way. A size beyond the bound of a table raises 7 "Out of memory".
template <class T>
class SurveyTable {
 public:
  int Surveys() const { return surveys_; }
  int LastColumn() const { return columns_ - 1; }
  int Rows() const { return rows_; }
  void ReDim(int surveys, int last_column, int rows) {
    CheckTableSize(surveys, last_column + 1LL, rows);
    surveys_ = std::max(surveys, 0);
    columns_ = std::max(last_column + 1, 0);
    rows_ = std::max(rows, 0);
    cells_.assign(static_cast<std::size_t>(surveys_) * static_cast<std::size_t>(columns_) *
                      static_cast<std::size_t>(rows_),
                  T{});
  }
  // Only the number of surveys changes; those that remain keep their cells.
  void ReDimSurveys(int surveys) {
    CheckTableSize(surveys, columns_, rows_);
    surveys_ = std::max(surveys, 0);
    cells_.resize(static_cast<std::size_t>(surveys_) * static_cast<std::size_t>(columns_) *
                  static_cast<std::size_t>(rows_));
  }
  T& operator()(int survey, int column, int row) { return cells_[At(survey, column, row)]; }
  const T& operator()(int survey, int column, int row) const { return cells_[At(survey, column, row)]; }

 private:
  std::size_t At(int survey, int column, int row) const {
    if (survey < 1 || survey > surveys_ || column < 0 || column >= columns_ || row < 1 || row > rows_) {
      throw RunTimeError(kErrSubscript);
    }
    return (static_cast<std::size_t>(survey - 1) * static_cast<std::size_t>(rows_) +
            static_cast<std::size_t>(row - 1)) *
               static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }
  int surveys_ = 0;
  int columns_ = 0;
  int rows_ = 0;
  std::vector<T> cells_;
};

}  // namespace tarnvik
