// The largest case: 100 years, 60 ages, 50 surveys, 4 selectivity periods, and a report of that size.
#pragma once

#include <string>

namespace tarnvik {

inline constexpr int kLargeFirstYear = 1920;
inline constexpr int kLargeYears = 100;
inline constexpr int kLargeAges = 60;
inline constexpr int kLargeSurveys = 50;
inline constexpr int kLargePeriods = 4;

// Writes large.ctl, large.dat and large.pin into a folder; returns the path of the control file.
std::string WriteLargeCase(const std::string& folder);
// Writes large.rep, large.std and large.par beside them, as the estimation program would lay them out.
void WriteLargeResults(const std::string& folder);

}  // namespace tarnvik
