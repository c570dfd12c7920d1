#include "inputfiles/paramfile.h"

namespace tarnvik {

void ReadParameterFile() {}
void WriteParameterFile() {}
void SaveParameterFileAs() {}
void OpenParameterFile() {}

}  // namespace tarnvik
