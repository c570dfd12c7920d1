// Viewing of text files and the two commands on a grid of results.
#pragma once

#include <string>

#include "platform/grid.h"

namespace tarnvik {

// The grid on which copy and select all work; null when there is none.
extern Grid* ActiveGrid;

void ShowFileInViewer(const std::string& path);
void ShowFileInProgram(const std::string& path);
void BrowseFileViewer();
void GridCopy();
void GridSelectAll();
void GridKeyShortcut(int code);

// The four view commands of the menu.
void ViewReportFile();
void ViewStdFile();
void ViewParFile();
void ViewLogFile();

}  // namespace tarnvik
