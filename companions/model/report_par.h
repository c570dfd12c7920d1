// TARNVIK.PAR: the values of all parameters, estimated or not, under a comment line each.
#pragma once

#include "case_data.h"
#include "fit.h"

#include <string>

namespace model {

std::string ParameterFileText(const Fit& fit, const StartValues& start, const Population<double>& population);

}  // namespace model
