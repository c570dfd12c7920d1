#include "modelrun/runmodel.h"

namespace tarnvik {

void RunModel() {}
void DeleteModelOutput() {}
void CollectModelOutput() {}
std::string PathHasNoSpaces(const std::string&) { return "True"; }
std::string ModelOutputNames[kModelOutputCount];

}  // namespace tarnvik
