#include "inputedit/checks.h"

#include <charconv>
#include <system_error>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/surveys.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

bool IsYesOrNo(std::string_view letters) {
  return letters == "y" || letters == "Y" || letters == "n" || letters == "N";
}

// Whether a text is a number from its first to its last character, blanks around it aside.
bool IsNumber(std::string_view text) {
  text = Trim(text);
  if (!text.empty() && (text[0] == '+' || text[0] == '-')) text.remove_prefix(1);
  if (text.empty() || !(text[0] == '.' || (text[0] >= '0' && text[0] <= '9'))) return false;
  double value = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size();
}

bool ReportFault(FormSlot& form, TabStrip& tabs, int tab, const std::string& message) {
  BringFormToFront(form);
  tabs.SetTab(tab);
  ShowMessage(message, Icon::Exclamation);
  return false;
}

}  // namespace

bool Blank(const std::string& text) { return IsBlank(text); }
bool Negative(const std::string& text) { return Val(text) < 0; }
bool NegativeOrBlank(const std::string& text) { return IsBlank(text) || Val(text) < 0; }
bool NegativeOrNoNumber(const std::string& text) { return !IsNumber(text) || Val(text) < 0; }

bool NotAFraction(const std::string& text) {
  const double value = Val(text);
  return value < 0 || value > 1;
}

bool NotAnAgeCount(const std::string& text) {
  const double value = Val(text);
  return value < 1 || value > NewNAges;
}

bool NotYesOrNo(const std::string& text) { return !IsYesOrNo(Trim(text).substr(0, 1)); }
bool NotJustYOrN(const std::string& text) { return !IsYesOrNo(Trim(text).substr(0, 2)); }

std::string FillWords(std::string_view words, std::initializer_list<Placeholder> placeholders) {
  std::string message;
  for (std::size_t at = 0; at < words.size(); ++at) {
    const Placeholder* found = nullptr;
    if (words[at] == '%' && at + 1 < words.size()) {
      for (const Placeholder& placeholder : placeholders) {
        if (placeholder.letter == words[at + 1]) found = &placeholder;
      }
    }
    if (found) {
      message += found->text;
      ++at;
    } else {
      message += words[at];
    }
  }
  return message;
}

bool InputFault(int tab, const std::string& message) {
  return ReportFault(frmInput, frmInput->SSTab1, tab, message);
}

bool PinFault(int tab, const std::string& message) {
  return ReportFault(frmPin, frmPin->SSTab1, tab, message);
}

bool CheckFields(int tab, std::span<const FieldCheck> checks) {
  for (const FieldCheck& check : checks) {
    if (check.applies && check.faulty(check.field.Text())) return InputFault(tab, check.words);
  }
  return true;
}

namespace {

bool CellFault(int tab, const GridCheck& check, const char* words, int row, int col) {
  const Grid& grid = frmInput->ORVFlexGrid(check.cells.grid);
  return InputFault(tab, FillWords(words, {{'y', grid.TextMatrix(row, 0)},
                                           {'r', NumberText(row)},
                                           {'n', NumberText(col - check.cells.first_col + 1)},
                                           {'s', NumberText(SelectedSurvey())}}));
}

int LastColumn(const GridCheck& check, const Grid& grid) {
  switch (check.cells.columns) {
    case Columns::One:
      return check.cells.first_col;
    case Columns::Ages:
      return check.cells.first_col + NewNAges - 1;
    case Columns::All:
      break;
  }
  return grid.Cols() - 1;
}

}  // namespace

bool CheckGrid(int tab, const GridCheck& check) {
  const Grid& grid = frmInput->ORVFlexGrid(check.cells.grid);
  const int last_col = LastColumn(check, grid);
  for (int col = check.cells.first_col; col <= last_col; ++col) {
    for (int row = 1; row < grid.Rows(); ++row) {
      const std::string& cell = grid.TextMatrix(row, col);
      for (const CellTest& test : {check.first, check.second}) {
        if (test.faulty && test.faulty(cell)) return CellFault(tab, check, test.words, row, col);
      }
    }
  }
  return true;
}

bool CheckGrids(int tab, std::span<const GridCheck> checks) {
  for (const GridCheck& check : checks) {
    if (!CheckGrid(tab, check)) return false;
  }
  return true;
}

}  // namespace tarnvik
