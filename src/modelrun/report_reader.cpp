#include "modelrun/report_reader.h"

#include <numeric>

#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"

namespace tarnvik {

namespace {

std::string_view line;  // a part of what File1 holds

template <class Test>
bool ReadUntil(Test holds) {
  while (!File1.AtEnd()) {
    ReadLine();
    if (holds()) return true;
  }
  return false;
}

}  // namespace

std::string_view Line() { return line; }

std::string_view ReadLine() {
  line = File1.ReadLine();
  return line;
}

void SkipLines(int count) {
  for (int i = 0; i < count; ++i) ReadLine();
}

bool LineHolds(std::string_view key) { return HoldsUpper(line, key); }

bool LineHoldsInOrder(std::string_view first, std::string_view second) {
  const std::size_t at = FindUpper(line, second);
  if (at == std::string_view::npos) return false;
  const std::size_t before = FindUpper(line, first);
  return before != std::string_view::npos && at > before;
}

bool FindKey(std::string_view key) {
  return ReadUntil([=] { return LineHolds(key); });
}

bool FindKeys(std::string_view first, std::string_view second) {
  return ReadUntil([=] { return LineHolds(first) && LineHolds(second); });
}

bool FindKeysInOrder(std::string_view first, std::string_view second) {
  return ReadUntil([=] { return LineHoldsInOrder(first, second); });
}

std::string_view Word(std::string_view text, int n) {
  std::string_view word = TokenFirst(text);
  for (int i = 1; i < n; ++i) word = TokenNext(text);
  return word;
}

std::string_view TextBehindEquals() { return line.substr(line.find('=') + 1); }

RowList RowsTo(int count) {
  RowList rows(static_cast<std::size_t>(count > 0 ? count : 0));
  std::iota(rows.begin(), rows.end(), 1);
  return rows;
}

void PutDown(Grid& grid, int base, int col, const RowList& rows, std::string_view text, int first) {
  std::string_view word = Word(text, first);
  for (const int row : rows) {
    grid.SetTextMatrix(base + row, col, word);
    word = TokenNext(text);
  }
}

void PutAcross(Grid& grid, int row, int col, int count, std::string_view text, int first, int step) {
  std::string_view word = Word(text, first);
  for (int i = 0; i < count; ++i) {
    grid.SetTextMatrix(row, col + i * step, word);
    word = TokenNext(text);
  }
}

void ReadDown(Grid& grid, int base, int col, const RowList& rows, int first) {
  PutDown(grid, base, col, rows, ReadLine(), first);
}

void ReadAcross(Grid& grid, int row, int col, int count) { PutAcross(grid, row, col, count, ReadLine()); }

void ReadBlock(Grid& grid, int base, int col, const RowList& rows) {
  for (const int row : rows) ReadAcross(grid, base + row, col, NAges);
}

}  // namespace tarnvik
