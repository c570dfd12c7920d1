// Effective sample sizes of age compositions (McAllister and Ianelli 1997), and sample sizes estimated by
// them.
#pragma once

#include "case_data.h"
#include "objective.h"
#include "population.h"

#include <vector>

namespace model {

// Per year of data: the multinomial sample size whose scatter the residuals show; 0 for a row without data.
// `predicted` is Y x A.
std::vector<double> EffectiveSampleSizes(const CaseData& data, const CompositionSeries& series,
                                         const Grid<double>& predicted);

// Whether any sample size is to be estimated.
bool WantsReweighting(const CaseData& data);

// One round: `sizes` become the input sizes times one factor per fleet, the harmonic mean of the effective
// sizes over the mean of the input sizes, held to 1..5000. Returns the largest relative change of a size.
double ReweightCompositions(const CaseData& data, const Population<double>& population, SampleSizes& sizes);

}  // namespace model
