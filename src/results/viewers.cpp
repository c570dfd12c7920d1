#include "results/viewers.h"

namespace tarnvik {

void ShowFileInViewer(const std::string&) {}
void ShowFileInProgram(const std::string&) {}
void BrowseFileViewer() {}
void GridCopy() {}
void GridSelectAll() {}
void GridKeyShortcut(int) {}
void ViewReportFile() {}
void ViewStdFile() {}
void ViewParFile() {}
void ViewLogFile() {}
Grid* ActiveGrid;

}  // namespace tarnvik
