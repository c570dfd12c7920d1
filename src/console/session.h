// One run of the program under commands.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "console/console_host.h"
#include "console/outcome.h"

namespace tarnvik {

// Where commands come from and answers go, a line each, without its end. Both say false when there is no
// more.
struct SessionStreams {
  std::function<bool(std::string& line)> read;
  std::function<bool(const std::string& line)> write;
};

class Session {
 public:
  Session(SessionStreams streams, std::string program_folder, std::optional<DateTime> now);

  // Starts the program, performs commands until the input ends, the program has ended or the output is gone,
  // and ends the program. At the end of input the open modal forms are closed by code.
  void Run();

 private:
  // Reads on until the record of a modal form is gone (null: there is none to wait for).
  void ReadCommands(const FormSlot* modal);
  void Perform(std::string line);
  void WriteLine(const std::string& line);

  SessionStreams streams_;
  ConsoleHost host_;
  bool input_ended_ = false;
  int modal_forms_shown_ = 0;
};

}  // namespace tarnvik
