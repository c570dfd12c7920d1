// Standard deviations of everything that is estimated or derived, by the delta method.
#pragma once

#include "fit.h"

#include <optional>
#include <string>
#include <vector>

namespace model {

struct ReportedQuantity {
  std::string name;
  double value = 0;
  double deviation = 0;
};

// One element per estimated parameter and derived quantity, in the order of the standard deviation file.
// Reads the end of a fit with at least one estimated parameter. Nothing when the Hessian matrix of the
// objective function, penalties included, is not positive definite, or when a value or a deviation is not
// finite.
std::optional<std::vector<ReportedQuantity>> ComputeDeviations(const Fit& fit);

}  // namespace model
