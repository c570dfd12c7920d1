// TARNVIK.STD: estimates with standard deviations, one element a line.
#pragma once

#include "deviations.h"

#include <string>
#include <vector>

namespace model {

std::string DeviationFileText(const std::vector<ReportedQuantity>& quantities);

}  // namespace model
