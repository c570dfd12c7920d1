// Finding a text in a grid, and the bar below it in which the text is asked for.
#pragma once

#include <QWidget>
#include <optional>
#include <string_view>

#include "desktop/grids/grid_cells.h"

class QLabel;
class QLineEdit;

namespace tarnvik {

class GridTable;

// The next cell behind (or before) one that holds a text, whatever its case, going round at the end. A row
// label or a heading counts for the first cell beside or below it. The cell itself comes last.
std::optional<CellAt> FindInGrid(const Grid& grid, std::string_view text, CellAt from, bool back);

class FindBar : public QWidget {
 public:
  FindBar(GridTable& table, QWidget* parent);
  void Open();               // shows the bar and takes the focus
  void FindNext(bool back);  // opens the bar when there is nothing to look for yet
  void Close();              // the focus goes back to the table

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  GridTable& table_;
  QLineEdit* text_;
  QLabel* note_;
};

}  // namespace tarnvik
