#include "results/viewers.h"

#include <algorithm>

#include "core/globals.h"
#include "core/utils.h"
#include "platform/host.h"
#include "platform/paths.h"
#include "results/frmview.h"
#include "results/frmviewopt.h"

namespace tarnvik {

Grid* ActiveGrid = nullptr;

// --- Files

namespace {

std::string ReadText(const std::string& path) {
  std::string text;
  File1.Open(path);
  // Room at once: a long text that grows would leave its former places behind. Line ends may become longer.
  text.reserve(File1.Size() + File1.Size() / 8);
  while (!File1.AtEnd()) {
    text += File1.ReadLine();
    text += kLineBreak;
  }
  File1.Close();
  return text;
}

void ViewFile(const std::string& path, const char* missing, Icon icon) {
  if (!FileExists(path)) {
    ShowMessage(missing, icon);
  } else if (FileViewerPath.empty()) {
    ShowFileInViewer(path);
  } else if (!FileExists(FileViewerPath)) {
    ShowMessage("Unable to Find File Viewer Application: " + (kLineBreak + FileViewerPath),
                Icon::Exclamation);
  } else {
    ShowFileInProgram(path);
  }
}

}  // namespace

void ShowFileInViewer(const std::string& path) {
  HourglassPointer wait;
  try {
    std::string text = ReadText(path);
    frmView->rtfView.SetText(std::move(text));
    wait.Done();
    frmView->SetCaption("View - " + path);
    BringFormToFront(frmView);
  } catch (...) {
    File1.Close();
    wait.Done();
    ShowMessage(CurrentErrorText());
  }
}

void ShowFileInProgram(const std::string& path) { TheHost().StartProgram(FileViewerPath + " " + path); }

void BrowseFileViewer() {
  FileDialog dialog;
  dialog.title = "Select Program for Viewing Result Files";
  dialog.filter = "EXE Files (*.exe)|*.exe";
  dialog.moves_current_folder = false;
  const auto program = TheHost().ShowFileDialog(dialog);
  if (program && !program->empty()) frmViewOpt->lblFile.SetCaption(*program);
}

void ViewReportFile() { ViewFile(ReportPath, "Report File Missing", Icon::Exclamation); }
void ViewStdFile() { ViewFile(StdPath, "Standard Deviation File Missing", Icon::Exclamation); }
void ViewParFile() { ViewFile(ParPath, "Output Parameter File Missing", Icon::Exclamation); }
void ViewLogFile() { ViewFile(LogPathOf(CtlFilePath), "Log File Unavailable", Icon::Information); }

// --- Grids

namespace {

// The active grid, if the form that it lies on is still loaded.
Grid* LivingGrid() {
  for (const FormSlot* slot : LoadedForms()) {
    for (Control* control : slot->Record()->Controls()) {
      if (control == ActiveGrid && control->Kind() == ControlKind::Grid) return ActiveGrid;
    }
  }
  return ActiveGrid = nullptr;
}

// A selection made before the table shrank may reach beyond it.
int Within(int position, int count) { return std::clamp(position, 0, count - 1); }

}  // namespace

void GridCopy() {
  Grid* grid = LivingGrid();
  if (!grid || grid->Rows() == 0 || grid->Cols() == 0) return;
  HourglassPointer wait;
  const int row = Within(grid->Row, grid->Rows());
  const int col = Within(grid->Col, grid->Cols());
  const auto [first_row, last_row] = std::minmax({row, Within(grid->RowSel, grid->Rows())});
  const auto [first_col, last_col] = std::minmax({col, Within(grid->ColSel, grid->Cols())});
  std::string text;
  for (int r = first_row; r <= last_row; ++r) {
    for (int c = first_col; c <= last_col; ++c) {
      if (c > first_col) text += '\t';
      text += grid->TextMatrix(r, c);
    }
    text += kLineBreak;
  }
  TheHost().SetClipboard(std::move(text));
  grid->SetSelection(row, col, row, col);
}

void GridSelectAll() {
  Grid* grid = LivingGrid();
  if (!grid || grid->Rows() <= grid->FixedRows || grid->Cols() <= grid->FixedCols) return;
  grid->SetSelection(grid->FixedRows, grid->FixedCols, grid->Rows() - 1, grid->Cols() - 1);
}

void GridKeyShortcut(int code) {
  if (code == 'C') GridCopy();
  if (code == 'A') GridSelectAll();
}

}  // namespace tarnvik
