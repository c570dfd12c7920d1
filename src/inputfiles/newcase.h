// What "new" means: empty forms for the dimensions in force, with default names.
#pragma once

namespace tarnvik {

void ClearDataForm();
void NewDataFile();
void NewParameterFile();
void NewCase();

}  // namespace tarnvik
