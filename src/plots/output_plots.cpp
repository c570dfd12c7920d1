#include "plots/output_plots.h"

namespace tarnvik {

void RefreshOutputPlots() {}

}  // namespace tarnvik
