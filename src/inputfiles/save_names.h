// Names for files to be saved, as every Save As flow asks for them.
#pragma once

#include <optional>
#include <string>

#include "platform/host.h"

namespace tarnvik {

// Shows a save dialog and returns the chosen path. Nothing when the dialog was cancelled or the name is
// empty, both without a word, nor when the path holds a blank: the model's command line cannot take one, and
// a message says so. Changes nothing else.
std::optional<std::string> AskSaveName(const FileDialog& dialog);

}  // namespace tarnvik
