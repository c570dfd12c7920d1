// The commands that ask and change nothing; none of them loads a form.
#pragma once

#include "console/acts.h"

namespace tarnvik {

Outcome AskGet(ConsoleHost& host, const Words& words);
Outcome AskCell(ConsoleHost& host, const Words& words);
Outcome AskGrid(ConsoleHost& host, const Words& words);
Outcome AskState(ConsoleHost& host, const Words& words);
Outcome AskDump(ConsoleHost& host, const Words& words);
Outcome AskForms(ConsoleHost& host, const Words& words);
Outcome AskChart(ConsoleHost& host, const Words& words);
Outcome AskClipboard(ConsoleHost& host, const Words& words);

}  // namespace tarnvik
