// How cells, row labels and headings of a grid look.
#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>
#include <vector>

#include "desktop/grids/grid_model.h"

namespace tarnvik {

// Paints the cells: their colours, those that cannot be edited as such, a frame around the current one.
class CellPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

// The header of one side: headings above, with their words on several lines, or all label columns at the
// left. A heading beside or above the selection is marked.
class GridHeader : public QHeaderView {
 public:
  GridHeader(Qt::Orientation orientation, const GridModel& model, QWidget* parent);
  // The widths of the label columns, for the header at the left; it is as wide as they are.
  void SetLabelWidths(std::vector<int> widths);
  // Paints the headings of the label columns into the corner between the headers.
  void PaintCorner(QPainter& painter, const QRect& rect) const;

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;

 private:
  void PaintLabels(QPainter& painter, const QRect& rect, int row, bool marked) const;
  const GridModel& grid_;
  std::vector<int> label_widths_;
};

}  // namespace tarnvik
