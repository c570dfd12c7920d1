// The data file: a fixed sequence of items. What each item is called, how long it is and which values it
// allows stands in the tables of data_file_read.cpp.
#pragma once

#include "case_data.h"
#include "messages.h"

#include <string>

namespace model {

// Reads the data file. Compositions come back as proportions of the included ages, a negative number counting
// as 0. Raises Failure(kInputFault) with file, line, item and value; warns when values follow the last item.
CaseData ReadCaseData(const std::string& file, const Messages& messages);

}  // namespace model
