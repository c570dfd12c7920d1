#include "console/commands.h"

#include <algorithm>

#include "console/questions.h"
#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

struct Command {
  const char* name;
  const char* arguments;
  std::size_t fewest, most;  // arguments
  Outcome (*run)(ConsoleHost& host, const Words& words);
  const char* help;
};

constexpr std::size_t kAny = static_cast<std::size_t>(-1);

const Command kCommands[] = {
    {"menu", "NAME", 1, 1, DoMenu, "choose a menu entry"},
    {"click", "NAME", 1, 1, DoClick, "press a button, or click a label"},
    {"type", "NAME TEXT", 2, 2, DoType, "replace the text of a text box and leave the box"},
    {"select", "NAME N", 2, 2, DoSelect, "choose entry N (from 0) of a list, -1 for none"},
    {"pick", "NAME TEXT", 2, 2, DoPick, "choose the first entry that reads TEXT"},
    {"check", "NAME 0|1", 2, 2, DoCheck, "untick or tick a check box"},
    {"choose", "NAME", 1, 1, DoChoose, "set an option button"},
    {"mark", "NAME N 0|1", 3, 3, DoMark, "clear or set the mark of entry N of a check list"},
    {"edit", "NAME ROW COL TEXT", 4, 4, DoEdit, "edit a grid cell"},
    {"range", "NAME R1 C1 R2 C2", 5, 5, DoRange, "select a range of a grid"},
    {"key", "NAME C", 2, 2, DoKey, "press Ctrl and a letter on a grid"},
    {"double", "NAME N", 2, 2, DoDouble, "double click on entry N of a list box"},
    {"down", "NAME N", 2, 2, DoDown, "press the mouse button on entry N of a list box"},
    {"up", "NAME N", 2, 2, DoUp, "release the mouse button on entry N of a list box"},
    {"tab", "NAME N", 2, 2, DoTab, "bring page N of a tab control to the front"},
    {"activate", "FORM", 1, 1, DoActivate, "bring a loaded form to the front"},
    {"close", "FORM", 1, 1, DoClose, "close a window as the user does"},
    {"answer", "WORD...", 1, kAny, DoAnswer, "queue answers for message boxes: yes, no, ok, cancel"},
    {"file", "PATH|cancel", 1, 1, DoFile, "queue an answer for the next file dialog"},
    {"get", "NAME [PROPERTY]", 1, 2, AskGet, "the value or a property of a control"},
    {"cell", "NAME ROW COL", 3, 3, AskCell, "the text of a grid cell"},
    {"grid", "NAME", 1, 1, AskGrid, "the texts of a whole grid, row by row"},
    {"state", "NAME", 1, 1, AskState, "a value of the case state"},
    {"dump", "FORM", 1, 1, AskDump, "all controls of a loaded form with their properties"},
    {"forms", "", 0, 0, AskForms, "the loaded forms"},
    {"chart", "NAME", 1, 1, AskChart, "the plot model of a chart"},
    {"draw", "NAME FILE", 2, 2, DoDraw, "the picture of a chart as PNG, SVG or PDF"},
    {"clipboard", "", 0, 0, AskClipboard, "the text on the clipboard"},
    {"exit", "", 0, 0, DoExit, "the menu entry Exit, then the end of the program"},
};

std::string Usage(const Command& command) {
  const std::string arguments = command.arguments;
  return arguments.empty() ? command.name : command.name + (" " + arguments);
}

}  // namespace

Outcome RunCommand(ConsoleHost& host, const Words& words) {
  try {
    const auto command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                      [&](const Command& c) { return c.name == words[0]; });
    if (command == std::end(kCommands)) StopWithError("no command " + words[0]);
    const std::size_t arguments = words.size() - 1;
    if (arguments < command->fewest || arguments > command->most) StopWithError("usage: " + Usage(*command));
    return command->run(host, words);
  } catch (const CommandStopped& stopped) {
    return stopped.outcome;
  } catch (...) {
    return {"error", JsonText(CurrentErrorText())};
  }
}

std::string CommandHelp() {
  std::string help;
  for (const Command& command : kCommands) {
    std::string line = "  " + Usage(command);
    line.resize(std::max<std::size_t>(line.size() + 2, 28), ' ');
    help += line + command.help + "\n";
  }
  return help;
}

}  // namespace tarnvik
