#include "desktop/grids/grid_model.h"

#include <algorithm>

#include "charts/text.h"
#include "core/text.h"

namespace tarnvik {

namespace {

bool HasCell(const Grid* grid, CellAt at) {
  return grid && at.row >= 0 && at.col >= 0 && at.row < grid->Rows() && at.col < grid->Cols();
}

}  // namespace

QString TextAt(const Grid* grid, CellAt at) {
  return HasCell(grid, at) ? ShownText(grid->TextMatrix(at.row, at.col)) : QString();
}

Qt::Alignment ColumnAlignment(const Grid& grid, int col) {
  const std::string& format = grid.FormatString();
  std::size_t begin = 0;
  for (int i = 0; i < col; ++i) {
    const std::size_t bar = format.find('|', begin);
    if (bar == std::string::npos) break;
    begin = bar + 1;
  }
  std::string mark = format.substr(begin, format.find('|', begin) - begin);
  // Where there is no label column, what is said of one is meant for the labels of other grids.
  if (IsBlank(mark) && col >= LabelCols(grid)) mark = format.substr(format.rfind('|') + 1);
  if (mark.find('<') != std::string::npos) return Qt::AlignLeft | Qt::AlignVCenter;
  if (mark.find('^') != std::string::npos) return Qt::AlignCenter;
  // Unsaid: labels left, numbers right.
  return (col < LabelCols(grid) ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
}

GridModel::GridModel(const ControlView& view, QObject* parent)
    : QAbstractTableModel(parent), view_(&view), shape_(ShapeNow()) {}

void GridModel::LetGo() {
  beginResetModel();
  view_ = nullptr;
  shape_ = {};
  endResetModel();
}

Grid* GridModel::Shown() const { return view_ ? static_cast<Grid*>(view_->Shown()) : nullptr; }

GridModel::Shape GridModel::ShapeNow() const {
  const Grid* grid = Shown();
  if (!grid) return {};
  if (!HasBody(*grid)) return {grid->FixedRows, LabelCols(*grid), grid->FixedRows, LabelCols(*grid)};
  return {grid->Rows(), grid->Cols(), grid->FixedRows, LabelCols(*grid)};
}

bool GridModel::Follow() {
  const Shape now = ShapeNow();
  if (now != shape_) {
    beginResetModel();
    shape_ = now;
    endResetModel();
    return true;
  }
  const int rows = rowCount();
  const int cols = columnCount();
  if (rows > 0 && cols > 0) emit dataChanged(index(0, 0), index(rows - 1, cols - 1));
  if (cols > 0) emit headerDataChanged(Qt::Horizontal, 0, cols - 1);
  if (rows > 0) emit headerDataChanged(Qt::Vertical, 0, rows - 1);
  return false;
}

CellAt GridModel::CellOf(const QModelIndex& index) const {
  return {RowOf(index.row()), ColOf(index.column())};
}

QModelIndex GridModel::IndexOf(CellAt at) const {
  return index(at.row - shape_.fixed_rows, at.col - shape_.label_cols);
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shape_.rows - shape_.fixed_rows;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shape_.cols - shape_.label_cols;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const Grid* grid = Shown();
  const CellAt at = CellOf(index);
  if (!index.isValid() || !HasCell(grid, at)) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return TextAt(grid, at);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(ColumnAlignment(*grid, at.col));
    case Qt::AccessibleDescriptionRole:
      return ShownText(CellName(*grid, at));
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const Grid* grid = Shown();
  if (!grid || role != Qt::DisplayRole) return {};
  const bool title = orientation == Qt::Horizontal;
  QStringList texts;
  const int count = title ? shape_.fixed_rows : shape_.label_cols;
  for (int i = 0; i < count; ++i) {
    const CellAt at = title ? CellAt{i, ColOf(section)} : CellAt{RowOf(section), i};
    texts << TextAt(grid, at);
  }
  return texts.join(title ? u'\n' : u' ');
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  const Grid* grid = Shown();
  const CellAt at = CellOf(index);
  if (!index.isValid() || !HasCell(grid, at)) return Qt::NoItemFlags;
  const Qt::ItemFlags all = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
  return UserMayEdit(*grid, at) ? all | Qt::ItemIsEditable : all;
}

}  // namespace tarnvik
