// How wide the columns of a grid are to be, so that their texts can be read.
#pragma once

#include <QFont>
#include <QString>
#include <vector>

#include "desktop/grids/grid_cells.h"

namespace tarnvik {

inline constexpr int kCellMargin = 5;  // at either side of a text, in pixels

// Widths for all columns of the grid, label columns too, in pixels. They are measured over a sample of the
// rows and the rows in view, from first_in_view on; the grid's own width is the least. A heading may break
// between its words.
std::vector<int> FittingWidths(const Grid& grid, const QFont& font, int dots_per_inch, int first_in_view);

// A heading that breaks at blanks only, not within "(y/n)".
QString BrokenAtBlanks(QString heading);

// The height that the headings need in columns of these widths.
int HeadingHeight(const Grid& grid, const QFont& font, const std::vector<int>& widths);

// The height of a row of cells.
int RowHeight(const QFont& font);

}  // namespace tarnvik
