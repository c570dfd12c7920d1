// The two programs, from command line to exit status: 0 when the files are written, 1 after a fault.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace vpa {

// `arguments` are those of the command line, without the program's name. Several are one path with blanks,
// since the program that starts these two does not quote it. Faults are one line on `log`.
//
// Writes vpa_survey_list.txt into the folder of the index file. After a fault there is no list, and the fault
// stands in vpa_survey_error.log beside it too.
int RunScanVpaSurvey(const std::vector<std::string>& arguments, std::ostream& progress, std::ostream& log);

// Reads tarnvik_survey_list.txt in the folder of the index file and writes the case. After a fault no file is
// changed.
int RunVpa2Tarnvik(const std::vector<std::string>& arguments, std::ostream& progress, std::ostream& log);

}  // namespace vpa
