// The case state by name, as JSON.
#pragma once

#include <string>
#include <string_view>

namespace tarnvik {

// A module-wide value: "NFYear", "DatFilePath", "SurvTitle(2)", "SurvAgeFit(1,3,14)". Numbers and flags are
// numbers (a flag is -1 or 0), texts are texts. An unknown name or an element that is not there stops with an
// error.
std::string CaseValue(std::string_view word);

}  // namespace tarnvik
