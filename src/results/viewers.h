// Viewing of text files and the two commands on a grid of results.
#pragma once

#include <string>

#include "platform/grid.h"

namespace tarnvik {

// The grid on which copy and select all work; null when there is none. The events of the result grids set it.
// It may outlive its form: the procedures below take a grid of a form that is no longer loaded for none.
extern Grid* ActiveGrid;

// Reads a text file (as File1) into frmView, names it in the form's caption and shows the form. Shows the
// text of a run-time error; frmView is as before then.
void ShowFileInViewer(const std::string& path);
// Starts FileViewerPath with the path behind it, neither quoted, and does not wait. Raises 53 when it cannot
// be started.
void ShowFileInProgram(const std::string& path);
// Asks for a program and shows it in frmViewOpt's lblFile; the current folder stays.
void BrowseFileViewer();

// Puts the selected cells of ActiveGrid on the clipboard, tabs between the columns and a line break behind
// each row, and leaves one cell selected: the one in which the selection began.
void GridCopy();
// Selects all cells of ActiveGrid behind its fixed rows and columns, if there are any.
void GridSelectAll();
// Ctrl and a letter on ActiveGrid: 67 "C" copies, 65 "A" selects all.
void GridKeyShortcut(int code);

// The four view commands of the menu. Each shows a message when its file is missing, or when the program
// named in FileViewerPath is; otherwise the file, in that program or, when FileViewerPath is "", in frmView.
void ViewReportFile();
void ViewStdFile();
void ViewParFile();
void ViewLogFile();

}  // namespace tarnvik
