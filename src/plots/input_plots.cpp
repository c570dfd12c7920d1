#include "plots/input_plots.h"

#include "core/globals.h"
#include "platform/host.h"

namespace tarnvik {

void RefreshInputPlots() {
  if (DatFileOpen != kTrue || PinFileOpen != kTrue) return;
  TheHost().ProcessEvents();
}

}  // namespace tarnvik
