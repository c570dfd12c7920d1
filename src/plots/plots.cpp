#include "plots/plots.h"

#include "core/globals.h"
#include "platform/host.h"

namespace tarnvik {

void RefreshInputPlots() {
  if (DatFileOpen != kTrue || PinFileOpen != kTrue) return;
  TheHost().ProcessEvents();
}

void RefreshOutputPlots() {}

}  // namespace tarnvik
