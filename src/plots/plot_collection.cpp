#include "plots/plot_collection.h"

namespace tarnvik {

void GeneratePlotCollection() {}

}  // namespace tarnvik
