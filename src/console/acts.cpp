#include "console/acts.h"

#include <algorithm>

#include "console/targets.h"
#include "console/words.h"
#include "core/text.h"
#include "platform/paths.h"
#include "program/program.h"

namespace tarnvik {

namespace {

bool SwitchWord(const std::string& word) {
  if (word != "0" && word != "1") StopWithError(word + " is neither 0 nor 1");
  return word == "1";
}

int HandlerIndex(const Control& control) { return std::max(control.Index(), 0); }

Outcome Act(const std::function<void()>& act) {
  RunEvent(act);
  return Ok();
}

}  // namespace

int NumberWord(const std::string& word) {
  const auto number = ReadNumber(word);
  if (!number) StopWithError(word + " is not a whole number");
  return *number;
}

// --- Menu entries, buttons, fields

Outcome DoMenu(ConsoleHost& host, const Words& words) {
  MenuItem& entry = Reach<MenuItem>(host, words[1]);
  if (entry.IsSeparator()) Refuse(ControlName(entry) + " is a separator");
  if (!entry.OnClick) Refuse(ControlName(entry) + " has no effect of its own");
  return Act([&] { entry.UserClick(); });
}

Outcome DoClick(ConsoleHost& host, const Words& words) {
  Control& control = Reach(host, words[1], {ControlKind::CommandButton, ControlKind::Label});
  if (control.Kind() == ControlKind::Label && !control.OnClick) {
    Refuse(ControlName(control) + " does nothing when it is clicked");
  }
  return Act([&] { control.UserClick(); });
}

Outcome DoType(ConsoleHost& host, const Words& words) {
  TextBox& box = Reach<TextBox>(host, words[1]);
  return Act([&] {
    box.SetText(words[2]);
    if (box.OnLostFocus) box.OnLostFocus(HandlerIndex(box));
  });
}

Outcome DoCheck(ConsoleHost& host, const Words& words) {
  const bool checked = SwitchWord(words[2]);
  CheckBox& box = Reach<CheckBox>(host, words[1]);
  return Act([&] { box.UserCheck(checked ? 1 : 0); });
}

Outcome DoChoose(ConsoleHost& host, const Words& words) {
  OptionButton& option = Reach<OptionButton>(host, words[1]);
  return Act([&] { option.UserChoose(); });
}

Outcome DoTab(ConsoleHost& host, const Words& words) {
  const int page = NumberWord(words[2]);
  TabStrip& tabs = Reach<TabStrip>(host, words[1]);
  const std::string name = ControlName(tabs);
  if (page < 0 || page >= tabs.Tabs()) Refuse(name + " has no page " + words[2]);
  if (!tabs.TabEnabled(page)) Refuse("page " + words[2] + " of " + name + " is disabled");
  return Act([&] {
    tabs.SetTab(page);
    tabs.UserClick();
  });
}

// --- Lists

namespace {

ListControl& ReachList(const ConsoleHost& host, const std::string& name) {
  return static_cast<ListControl&>(Reach(host, name, {ControlKind::ComboBox, ControlKind::ListBox}));
}

void CheckEntry(const ListControl& list, int entry) {
  if (entry < 0 || entry >= list.ListCount())
    Refuse(ControlName(list) + " has no entry " + std::to_string(entry));
}

}  // namespace

Outcome DoSelect(ConsoleHost& host, const Words& words) {
  const int entry = NumberWord(words[2]);
  ListControl& list = ReachList(host, words[1]);
  if (entry != -1) CheckEntry(list, entry);
  return Act([&] { list.UserSelect(entry); });
}

Outcome DoPick(ConsoleHost& host, const Words& words) {
  ListControl& list = ReachList(host, words[1]);
  int entry = 0;
  while (entry < list.ListCount() && list.List(entry) != words[2]) ++entry;
  if (entry == list.ListCount()) Refuse(ControlName(list) + " has no entry \"" + words[2] + "\"");
  return Act([&] { list.UserSelect(entry); });
}

Outcome DoMark(ConsoleHost& host, const Words& words) {
  const int entry = NumberWord(words[2]);
  const bool selected = SwitchWord(words[3]);
  ListBox& list = Reach<ListBox>(host, words[1]);
  CheckEntry(list, entry);
  return Act([&] { list.UserMark(entry, selected); });
}

Outcome DoDouble(ConsoleHost& host, const Words& words) {
  const int entry = NumberWord(words[2]);
  ListBox& list = Reach<ListBox>(host, words[1]);
  CheckEntry(list, entry);
  return Act([&] {
    list.UserSelect(entry);
    if (list.OnDblClick) list.OnDblClick(HandlerIndex(list));
  });
}

namespace {

// A press or release of the mouse button over an entry. It moves the current entry, but is no click.
Outcome MoveMouseButton(ConsoleHost& host, const Words& words, void (*ListBox::*event)(int item)) {
  const int entry = NumberWord(words[2]);
  ListBox& list = Reach<ListBox>(host, words[1]);
  CheckEntry(list, entry);
  return Act([&] {
    list.UserPoint(entry);
    if (list.*event) (list.*event)(entry);
  });
}

}  // namespace

Outcome DoDown(ConsoleHost& host, const Words& words) {
  return MoveMouseButton(host, words, &ListBox::OnMouseDown);
}
Outcome DoUp(ConsoleHost& host, const Words& words) {
  return MoveMouseButton(host, words, &ListBox::OnMouseUp);
}

// --- Grids

namespace {

std::string CellName(const Grid& grid, int row, int col) {
  return "cell " + std::to_string(row) + "," + std::to_string(col) + " of " + ControlName(grid);
}

void CheckCell(const Grid& grid, int row, int col) {
  if (row < 0 || row >= grid.Rows() || col < 0 || col >= grid.Cols()) {
    Refuse("there is no " + CellName(grid, row, col));
  }
}

void EditCell(Grid& grid, int row, int col, const std::string& text) {
  grid.SetSelection(row, col, row, col);
  if (grid.OnBeginEdit) grid.OnBeginEdit(HandlerIndex(grid));
  if (!grid.CellEditable(row, col)) return;  // what began the edit has taken the cell away
  grid.SetTextMatrix(row, col, text);
  if (grid.OnEndEdit) grid.OnEndEdit(HandlerIndex(grid));
}

}  // namespace

Outcome DoEdit(ConsoleHost& host, const Words& words) {
  const int row = NumberWord(words[2]);
  const int col = NumberWord(words[3]);
  Grid& grid = Reach<Grid>(host, words[1]);
  CheckCell(grid, row, col);
  if (!grid.CellEditable(row, col)) Refuse(CellName(grid, row, col) + " cannot be edited");
  return Act([&] { EditCell(grid, row, col, words[4]); });
}

Outcome DoRange(ConsoleHost& host, const Words& words) {
  const int row = NumberWord(words[2]);
  const int col = NumberWord(words[3]);
  const int row_sel = NumberWord(words[4]);
  const int col_sel = NumberWord(words[5]);
  Grid& grid = Reach<Grid>(host, words[1]);
  CheckCell(grid, row, col);
  CheckCell(grid, row_sel, col_sel);
  return Act([&] { grid.SetSelection(row, col, row_sel, col_sel); });
}

Outcome DoKey(ConsoleHost& host, const Words& words) {
  const std::string& key = words[2];
  const char letter = key.size() == 1 ? static_cast<char>(key[0] & ~0x20) : '\0';
  if (letter < 'A' || letter > 'Z') StopWithError(key + " is not a letter");
  Grid& grid = Reach<Grid>(host, words[1]);
  return Act([&] {
    if (grid.OnKeyDown) grid.OnKeyDown(HandlerIndex(grid), letter, true);
  });
}

// --- Windows

Outcome DoActivate(ConsoleHost& host, const Words& words) {
  FormSlot& slot = ReachForm(host, words[1]);
  return Act([&] { ActivateForm(slot); });
}

Outcome DoClose(ConsoleHost& host, const Words& words) {
  FormSlot& slot = ReachForm(host, words[1]);
  return Act([&] { UnloadForm(slot, UnloadMode::ByUser); });
}

Outcome DoExit(ConsoleHost& host, const Words&) { return DoMenu(host, {"menu", "mnuFileExit"}); }

// --- Pictures

Outcome DoDraw(ConsoleHost& host, const Words& words) {
  const Chart& chart = Reach<Chart>(host, words[1]);
  const std::string& file = words[2];
  const std::string ending = LCase(file.substr(std::min(file.rfind('.'), file.size())));
  if (ending != ".png" && ending != ".svg" && ending != ".pdf") {
    StopWithError(file + " ends neither in .png nor in .svg or .pdf");
  }
  host.ExportChart(chart, file);
  return Ok();
}

// --- Answers to come

Outcome DoAnswer(ConsoleHost& host, const Words& words) {
  const struct {
    const char* word;
    Answer answer;
  } known[] = {{"yes", Answer::Yes}, {"no", Answer::No}, {"ok", Answer::Ok}, {"cancel", Answer::Cancel}};
  std::vector<Answer> answers;
  for (std::size_t i = 1; i < words.size(); ++i) {
    const auto row =
        std::find_if(std::begin(known), std::end(known), [&](auto& k) { return k.word == words[i]; });
    if (row == std::end(known)) StopWithError(words[i] + " is none of yes, no, ok, cancel");
    answers.push_back(row->answer);
  }
  host.answers.insert(host.answers.end(), answers.begin(), answers.end());
  return Ok();
}

Outcome DoFile(ConsoleHost& host, const Words& words) {
  const std::string& path = words[1];
  if (path.empty()) StopWithError("the path is empty");
  if (path == "cancel") {
    host.files.push_back(std::nullopt);
  } else {
    // A dialog gives full paths; the folder that counts is the one of now, not the one of the dialog.
    host.files.push_back(IsAbsolutePath(path) ? path : JoinPath(CurrentFolder(), path));
  }
  return Ok();
}

}  // namespace tarnvik
