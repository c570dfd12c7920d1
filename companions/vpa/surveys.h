// The surveys of the case, made of the indices that the user put together.
#pragma once

#include <string>
#include <vector>

#include "stock.h"
#include "survey_list.h"

namespace vpa {

struct Survey {
  std::string title;
  Span years;                 // from the first to the last year with all indices
  std::vector<bool> has_age;  // per age of the case
  std::vector<bool> fitted;   // per year of the survey; a year that is not holds zeros
  std::vector<double> index;  // per year of the survey: the sum of its indices
  Table shares;               // per year of the survey, per age of the case
  double z_before = 0;        // fraction of the year's mortality before the survey
};

// Makes the surveys that `list_file` asks for. An index of the dropped age 0 is left out and told in `notes`.
// A Fault for an index of another age that the case has not, and for a survey that has no index or no year
// left.
std::vector<Survey> MakeSurveys(const std::string& list_file, const std::vector<Fleet>& fleets,
                                const Stock& stock, std::vector<std::string>& notes);

}  // namespace vpa
