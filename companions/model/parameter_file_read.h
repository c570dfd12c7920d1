// The parameter file: start values of all parameters, whether the case uses them or not.
#pragma once

#include "case_data.h"
#include "messages.h"

#include <string>

namespace model {

// Reads the parameter file, whose list lengths come from `data`. Log selectivities come back centred. Raises
// Failure(kInputFault) with file, line, item and value; also when the values left for the annual
// selectivities do not make up a table: the one sign that the file belongs to a case of other dimensions.
StartValues ReadStartValues(const std::string& file, const CaseData& data);

}  // namespace model
