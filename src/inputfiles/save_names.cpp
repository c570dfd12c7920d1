#include "inputfiles/save_names.h"

namespace tarnvik {

std::optional<std::string> AskSaveName(const FileDialog& dialog) {
  const auto path = TheHost().ShowFileDialog(dialog);
  if (!path || path->empty()) return std::nullopt;
  if (path->find(' ') != std::string::npos) {
    ShowMessage(std::string("This Pathname Contains Imbedded Spaces") + kLineBreak +
                    "and is Not Supported in the Model" + kLineBreak + "File Not Saved",
                Icon::Information);
    return std::nullopt;
  }
  return path;
}

}  // namespace tarnvik
