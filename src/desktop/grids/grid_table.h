// The table in which a grid is shown and edited with the keys and the mouse of a spreadsheet.
#pragma once

#include <QBasicTimer>
#include <QPointer>
#include <QTableView>
#include <functional>
#include <memory>
#include <optional>
#include <set>

#include "desktop/grids/cell_editor.h"
#include "desktop/grids/edit_history.h"
#include "desktop/grids/grid_model.h"
#include "desktop/grids/grid_paint.h"

namespace tarnvik {

class GridTable : public QTableView {
 public:
  GridTable(const ControlView& view, QWidget* parent);
  ~GridTable() override;
  // The view goes: nothing is shown or passed on any more.
  void LetGo();
  // Brings the table in line with the grid: shape, texts, hidden rows and columns, widths, selection, top
  // row.
  void ShowGrid();

  // What keys and the menu offer; each runs as one event of the user's. Those that change cells do nothing
  // where nothing can be edited.
  void Copy();
  void SelectAllCells();
  void Cut();
  void Paste();
  void ClearSelected();
  void Undo();
  void Redo();
  void Find();
  // The user selects a range; the far end is brought into view.
  void Choose(const CellRange& range, bool bring_into_view = true);
  // The grid, null when it has gone.
  Grid* Shown() const { return model_->Shown(); }

  std::function<void()> OnFind;               // Ctrl+F
  std::function<void(bool back)> OnFindNext;  // F3

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void verticalScrollbarValueChanged(int value) override;
  void updateGeometries() override;

 private:
  // Showing (grid_table.cpp)
  void ShowHidden(const Grid& grid);
  void FitColumns(bool anew);
  void ShowRange(const CellRange& range);
  void ShowPlace(Grid& grid);
  int TopRowShown() const;
  void TakeRangeOf(const QItemSelection& selection);

  // Keys (grid_table_keys.cpp)
  bool MoveByKey(const Grid& grid, const QKeyEvent& event);
  bool ActByKey(const QKeyEvent& event);
  bool LetterKey(const QKeyEvent& event);
  bool EditByKey(const QKeyEvent& event);
  bool TabKey(const Grid& grid, bool back);
  void EnterKey(const Grid& grid, bool back);
  void MoveOn(EditEnd how);

  // Mouse (grid_table_mouse.cpp)
  std::optional<CellAt> CellUnder(const QPoint& place) const;
  void DragTo(const QPoint& place);
  void PopUpMenu(const QPoint& place);

  // Editing (grid_table_edits.cpp)
  void OpenEditor(const QString* typed);
  void ShowEditor(CellAt at, const QString* typed);
  void CloseEditor(EditEnd how);
  void TakeTyped(CellAt at, const QString& text, EditEnd how);
  void ChangeCells(const std::vector<CellText>& texts, const CellRange& select, int refused);
  void StepHistory(std::vector<CellChange> (EditHistory::*step)(const GridNow&));
  GridNow Now();

  GridModel* model_;
  GridHeader* titles_;
  GridHeader* labels_;
  std::shared_ptr<EditHistory> history_;  // outlives the table while an event of it runs
  QPointer<CellEditor> editor_;
  std::optional<int> tab_start_;  // the column to which Enter returns after Tab
  std::set<int> widths_by_user_;  // columns of the model
  QBasicTimer drag_timer_;
  bool dragging_ = false;
  bool showing_ = false;  // what changes now is not the user's doing
  bool fit_anew_ = true;  // widths to be measured when the table is seen next
  std::optional<CellRange> shown_range_;
  int shown_top_ = 0;
};

}  // namespace tarnvik
