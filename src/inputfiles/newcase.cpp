#include "inputfiles/newcase.h"

namespace tarnvik {

void ClearDataForm() {}
void NewDataFile() {}
void NewParameterFile() {}
void NewCase() {}

}  // namespace tarnvik
