#include "inputedit/validation.h"

namespace tarnvik {

void ValidateInputData() {}
void ValidateParameters() {}

}  // namespace tarnvik
