// The three files of the case, as text.
#pragma once

#include <string>
#include <vector>

#include "stock.h"
#include "surveys.h"

namespace vpa {

// Paths of the case's files; they stand in comments, and by their bare names in the control file.
struct CasePaths {
  std::string ctl;
  std::string dat;
  std::string pin;
};

// The title of the stock, and which age of it is age 1 of the case when it is not the same.
std::string Description(const Stock& stock);

std::string ControlFileText(const Stock& stock, const CasePaths& paths);
std::string DataFileText(const Stock& stock, const std::vector<Survey>& surveys, const CasePaths& paths);
std::string ParameterFileText(const Stock& stock, const std::vector<Survey>& surveys, const CasePaths& paths);

}  // namespace vpa
