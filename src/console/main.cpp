// tarnvik-console: the program without windows, driven by commands, answering in JSON.

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>

#include "console/arguments.h"
#include "console/commands.h"
#include "console/session.h"
#include "platform/paths.h"
#include "platform/process.h"

namespace tarnvik {

namespace {

constexpr int kOutputLost = 1;
constexpr int kWrongArguments = 2;

int output_error = 0;  // the errno that ended the output

bool WriteToOutput(const std::string& line) {
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fputc('\n', stdout);
  if (std::fflush(stdout) == 0 && !std::ferror(stdout)) return true;
  output_error = errno;
  return false;
}

int Fail(const std::string& fault) {
  std::fprintf(stderr, "tarnvik-console: %s\nusage: %s\n", fault.c_str(), kConsoleUsage);
  return kWrongArguments;
}

int Main(const std::vector<std::string>& words) {
#ifdef SIGPIPE
  // Whoever listens may go at any time; a case being written then must still be written to its end.
  std::signal(SIGPIPE, SIG_IGN);
#endif
  const Arguments arguments = ReadArguments(words);
  if (!arguments.fault.empty()) return Fail(arguments.fault);
  if (arguments.help) {
    std::printf(
        "%s\n\nReads commands, one a line, from SCRIPT or standard input; answers in JSON Lines.\n\n%s",
        kConsoleUsage, CommandHelp().c_str());
    return 0;
  }
  std::ios::sync_with_stdio(false);
  std::ifstream script;
  if (!arguments.script.empty()) {
    script.open(arguments.script, std::ios::binary);
    if (!script || FolderExists(arguments.script)) return Fail("cannot read " + arguments.script);
  }
  std::istream& input = arguments.script.empty() ? std::cin : script;
  const auto read = [&](std::string& line) { return static_cast<bool>(std::getline(input, line)); };
  const std::string folder = arguments.program_folder.empty() ? ExecutableFolder() : arguments.program_folder;
  Session({read, WriteToOutput}, folder, arguments.now).Run();
  // A listener that has gone is no fault; answers that could not be written are.
  if (output_error == 0 || output_error == EPIPE) return 0;
  std::fprintf(stderr, "tarnvik-console: cannot write answers: %s\n", std::strerror(output_error));
  return kOutputLost;
}

}  // namespace

}  // namespace tarnvik

int main(int argc, char** argv) { return tarnvik::Main(std::vector<std::string>(argv + 1, argv + argc)); }
