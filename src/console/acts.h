// The commands that do what a user does.
#pragma once

#include <string>
#include <vector>

#include "console/console_host.h"
#include "console/outcome.h"

namespace tarnvik {

// The words of a command; the first is the command itself.
using Words = std::vector<std::string>;

// A whole number given to a command; anything else is an error.
int NumberWord(const std::string& word);

Outcome DoMenu(ConsoleHost& host, const Words& words);
Outcome DoClick(ConsoleHost& host, const Words& words);
Outcome DoType(ConsoleHost& host, const Words& words);
Outcome DoSelect(ConsoleHost& host, const Words& words);
Outcome DoPick(ConsoleHost& host, const Words& words);
Outcome DoCheck(ConsoleHost& host, const Words& words);
Outcome DoChoose(ConsoleHost& host, const Words& words);
Outcome DoMark(ConsoleHost& host, const Words& words);
Outcome DoEdit(ConsoleHost& host, const Words& words);
Outcome DoRange(ConsoleHost& host, const Words& words);
Outcome DoKey(ConsoleHost& host, const Words& words);
Outcome DoDouble(ConsoleHost& host, const Words& words);
Outcome DoDown(ConsoleHost& host, const Words& words);
Outcome DoUp(ConsoleHost& host, const Words& words);
Outcome DoTab(ConsoleHost& host, const Words& words);
Outcome DoActivate(ConsoleHost& host, const Words& words);
Outcome DoClose(ConsoleHost& host, const Words& words);
Outcome DoAnswer(ConsoleHost& host, const Words& words);
Outcome DoFile(ConsoleHost& host, const Words& words);
Outcome DoDraw(ConsoleHost& host, const Words& words);
Outcome DoExit(ConsoleHost& host, const Words& words);

}  // namespace tarnvik
