#include "inputfiles/datafile.h"

namespace tarnvik {

void ReadDataFile() {}
void WriteDataFile() {}
void SaveDataFileAs() {}
void OpenDataFile() {}
void CompareBasicParms() {}

}  // namespace tarnvik
