// TARNVIK.REP: the report. Its reader finds sections by words in the line and values by their place behind
// it, so that order, wording and line counts are all fixed; no line may hold the words of a later section.
#pragma once

#include "fit.h"

#include <string>

namespace model {

// `dataFile` and `parameterFile` are named at the end, where no section follows that their words could be
// taken for.
std::string ReportText(const Fit& fit, const Population<double>& population, const std::string& dataFile,
                       const std::string& parameterFile);

}  // namespace model
