// Observed less predicted, in the forms of the report.
#pragma once

#include "case_data.h"
#include "population.h"

#include <optional>
#include <vector>

namespace model {

// One element per year of data; nothing for a year that is not fitted or has no usable value.
struct IndexResiduals {
  std::vector<std::optional<double>> plain;     // observed - predicted
  std::vector<std::optional<double>> logScale;  // difference of logarithms
  std::vector<std::optional<double>>
      standardized;           // by the series' own root mean square, since no CV is given for it
  double rootMeanSquare = 0;  // of the log-scale residuals, 0 when there is none
};

IndexResiduals ComputeIndexResiduals(const CaseData& data, const IndexSeries& series,
                                     const IndexPrediction<double>& predicted);

// Rows as the data, A columns; nothing in rows without data.
struct CompositionResiduals {
  Grid<std::optional<double>> observed;
  Grid<std::optional<double>> plain;
  Grid<std::optional<double>>
      standardized;                    // by the multinomial standard deviation of the sample size in force
  std::vector<double> rootMeanSquare;  // per row, over the included ages
};

CompositionResiduals ComputeCompositionResiduals(const CaseData& data, const CompositionSeries& series,
                                                 const std::vector<double>& sampleSize,
                                                 const Grid<double>& predicted);

// log(observed) - log(predicted) of the catch of a year with catch.
double LogCatchResidual(const CaseData& data, const Population<double>& population, int y);

// Root of the mean square; 0 of an empty list.
double RootMeanSquare(const std::vector<double>& values);

}  // namespace model
