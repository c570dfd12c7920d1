#include "core/settings.h"

namespace tarnvik {

void ReadSettingsFile() {}
void WriteSettingsFile() {}

}  // namespace tarnvik
