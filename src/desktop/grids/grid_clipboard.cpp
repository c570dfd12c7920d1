#include "desktop/grids/grid_clipboard.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

bool EndsLine(char c) { return c == '\n' || c == '\r'; }
bool EndsCell(char c) { return c == '\t' || EndsLine(c); }

// Takes a cell in quotes from the text, if it begins there and is closed before the cell ends.
bool TakeQuoted(std::string_view& text, std::string& cell) {
  if (text.empty() || text.front() != '"') return false;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] != '"') {
      if (text[i] != '\n' || text[i - 1] != '\r') cell += EndsCell(text[i]) ? ' ' : text[i];
    } else if (i + 1 < text.size() && text[i + 1] == '"') {
      cell += '"';
      ++i;
    } else if (i + 1 == text.size() || EndsCell(text[i + 1])) {
      text.remove_prefix(i + 1);
      return true;
    } else {
      break;
    }
  }
  cell.clear();
  return false;
}

std::string TakeCell(std::string_view& text) {
  std::string cell;
  if (TakeQuoted(text, cell)) return cell;
  const auto end = static_cast<std::size_t>(std::find_if(text.begin(), text.end(), EndsCell) - text.begin());
  cell = text.substr(0, end);
  text.remove_prefix(end);
  return cell;
}

void TakeLineEnd(std::string_view& text) { text.remove_prefix(text.starts_with("\r\n") ? 2 : 1); }

std::string Quoted(const std::string& cell) {
  if (cell.find_first_of("\t\r\n") == std::string::npos && !cell.starts_with('"')) return cell;
  std::string quoted = "\"";
  for (const char c : cell) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

std::size_t Length(const TextBlock& block) {
  std::size_t length = 0;
  for (const auto& row : block) length = std::max(length, row.size());
  return length;
}

// How often a block goes into a selection, down and across; once unless it does exactly.
struct Times {
  std::size_t down = 1;
  std::size_t across = 1;
};

Times TimesIn(const Grid& grid, const CellRange& selection, std::size_t rows, std::size_t cols) {
  const std::size_t height = ShownRows(grid, selection.Top(), selection.Bottom()).size();
  const std::size_t width = ShownCols(grid, selection.Left(), selection.Right()).size();
  if (rows == 0 || cols == 0 || height < rows || width < cols || height % rows || width % cols) return {};
  return {height / rows, width / cols};
}

void PlanCell(const Grid& grid, CellAt at, const std::string& text, PastePlan& plan) {
  if (grid.TextMatrix(at.row, at.col) == text) return;
  if (UserMayEdit(grid, at)) {
    plan.texts.push_back({at, text});
  } else {
    ++plan.refused;
  }
}

}  // namespace

TextBlock ReadBlock(std::string_view text) {
  TextBlock block;
  while (!text.empty()) {
    block.emplace_back();
    block.back().push_back(TakeCell(text));
    while (!text.empty() && text.front() == '\t') {
      text.remove_prefix(1);
      block.back().push_back(TakeCell(text));
    }
    if (!text.empty()) TakeLineEnd(text);
  }
  return block;
}

std::string BlockText(const Grid& grid, const CellRange& range) {
  const std::vector<int> rows = ShownRows(grid, range.Top(), range.Bottom());
  const std::vector<int> cols = ShownCols(grid, range.Left(), range.Right());
  const bool single = rows.size() == 1 && cols.size() == 1;
  std::string text;
  for (const int row : rows) {
    for (const int col : cols) {
      if (col != cols.front()) text += '\t';
      text += Quoted(grid.TextMatrix(row, col));
    }
    if (!single) text += kLineBreak;
  }
  return text;
}

bool HasNumberComma(std::string_view text) {
  const std::string_view number = Trim(text);
  const std::size_t comma = number.find(',');
  if (comma == std::string_view::npos) return false;
  // Signs, points, exponents, and what stands between thousands: nothing else than a number looks like this.
  return number.find_first_not_of("0123456789+-.,eEdD '") == std::string_view::npos &&
         number.find_first_of("0123456789") != std::string_view::npos;
}

PastePlan PlanPaste(const Grid& grid, const CellRange& selection, const TextBlock& block) {
  const std::vector<int> rows = ShownRows(grid, selection.Top(), grid.Rows() - 1);
  const std::vector<int> cols = ShownCols(grid, selection.Left(), grid.Cols() - 1);
  const std::size_t length = Length(block);
  const Times times = TimesIn(grid, selection, block.size(), length);

  PastePlan plan;
  CellAt last = {selection.Top(), selection.Left()};
  for (std::size_t r = 0; r < times.down * block.size(); ++r) {
    const std::vector<std::string>& row = block[r % block.size()];
    for (std::size_t c = 0; c < times.across * length; ++c) {
      if (c % length >= row.size()) continue;
      const std::string& text = row[c % length];
      const bool inside = r < rows.size() && c < cols.size();
      if (plan.comma.empty() && HasNumberComma(text)) {
        plan.comma = text;
        if (inside) plan.comma_cell = CellName(grid, {rows[r], cols[c]});
      }
      if (inside) {
        PlanCell(grid, {rows[r], cols[c]}, text, plan);
        last = {std::max(last.row, rows[r]), std::max(last.col, cols[c])};
      } else if (!IsBlank(text)) {
        ++plan.refused;
      }
    }
  }
  plan.range = {{selection.Top(), selection.Left()}, last};
  return plan;
}

PastePlan PlanClear(const Grid& grid, const CellRange& range) {
  PastePlan plan;
  for (const int row : ShownRows(grid, range.Top(), range.Bottom())) {
    for (const int col : ShownCols(grid, range.Left(), range.Right())) PlanCell(grid, {row, col}, "", plan);
  }
  plan.range = range;
  return plan;
}

}  // namespace tarnvik
