// Starting other programs: the part that all hosts share.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnvik {

// An eye on a program while it runs. Both may be empty.
struct ProcessWatch {
  std::function<void(std::string_view piece)>
      output;                  // what it writes to its standard output, piece by piece
  std::function<bool()> stop;  // asked ten times a second; true ends the program at once
};

// Runs a command line as a console process and waits for its end. On Windows the line goes to the system as
// it is. Elsewhere it is taken apart here, and no shell sees it: blank-separated words, a leading "CMD.EXE /C
// ", and "2> file" for the error stream. With "CMD.EXE /C " in front the start always succeeds, as the
// interpreter's would: a program that is missing or cannot run leaves a line saying so in the error file.
// Returns 0 when the process could not be created, else 1.
std::int32_t RunConsoleProcess(const std::string& command, const ProcessWatch& watch = {});

// Starts a command line and does not wait. Raises 53 "File not found" when its program cannot be started.
void StartProcess(const std::string& command);

// Opens a document with the system's own program for it; above 32 when that was started, as the shell says.
int OpenWithSystem(const std::string& path);

// The folder of the running executable, without a final separator.
std::string ExecutableFolder();

// A command line taken apart, for hosts without a command interpreter of their own.
struct CommandLine {
  std::vector<std::string> words;
  std::string error_file;    // "" when the error stream is not sent to a file
  bool interpreted = false;  // began with "CMD.EXE /C "
};
CommandLine TakeApart(std::string_view command);

}  // namespace tarnvik
