// A stock as a case needs it: the figures of the Lowestoft files for the years and ages of the case.
#pragma once

#include <string>
#include <vector>

#include "lowestoft_files.h"

namespace vpa {

// One row a year, one column an age of the case.
using Table = std::vector<std::vector<double>>;

struct Stock {
  std::string title;
  Span years;                  // those of the catch numbers
  Span ages;                   // those of the catch numbers, without age 0; the last one is a plus group
  bool age0_dropped = false;   // the catch numbers begin with age 0, which a case has no place for
  Table catch_numbers;         // thousands
  Table catch_weights;         // kg
  Table stock_weights;         // kg
  Table maturity;              // proportions
  std::vector<double> mean_m;  // natural mortality by age, mean over the years; above 0
  std::vector<double> catch_biomass;  // mt by year: as given, or catch numbers times catch weights
  double z_before_spawning = 0;       // fraction of the year's mortality, mean of the proportions of F and M

  std::size_t Years() const { return static_cast<std::size_t>(years.Count()); }
  std::size_t Ages() const { return static_cast<std::size_t>(ages.Count()); }
};

// Reads all that the index file names, tuning data and F files apart. A Fault when a needed file is missing,
// years or ages do not cover those of the catch numbers, or the figures are none of a stock.
Stock ReadStock(const IndexFile& index);

double Sum(const std::vector<double>& values);

}  // namespace vpa
