// Processes on hosts with fork and exec.
#ifndef _WIN32

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "platform/paths.h"
#include "platform/process.h"
#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

std::vector<char*> Arguments(std::vector<std::string>& words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  return arguments;
}

// Becomes the program; on failure says so on the error stream, as a command interpreter would.
[[noreturn]] void Become(std::vector<std::string>& words) {
  auto arguments = Arguments(words);
  execvp(arguments[0], arguments.data());
  const std::string text = words[0] + ": " + std::strerror(errno) + "\n";
  [[maybe_unused]] const auto written = write(STDERR_FILENO, text.data(), text.size());
  _exit(127);
}

int WaitForEnd(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return status;
}

// Passes on what the child writes until it closes its output or is ended.
void Watch(pid_t child, int from, const ProcessWatch& watch) {
  constexpr int kTenthOfSecond = 100;
  char piece[4096];
  while (true) {
    if (watch.stop && watch.stop()) {
      kill(child, SIGKILL);
      return;
    }
    pollfd ready{from, POLLIN, 0};
    const int polled = poll(&ready, 1, watch.stop ? kTenthOfSecond : -1);
    if (polled == 0 || (polled < 0 && errno == EINTR)) continue;
    const auto got = read(from, piece, sizeof piece);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return;
    if (watch.output) watch.output(std::string_view(piece, static_cast<std::size_t>(got)));
  }
}

bool IsExecutable(const std::string& program) {
  // A bare name is looked for on the search path by the system; only a path can be tested here.
  return LastSeparator(program) == std::string::npos || access(program.c_str(), X_OK) == 0;
}

}  // namespace

std::int32_t RunConsoleProcess(const std::string& command, const ProcessWatch& watch) {
  CommandLine line = TakeApart(command);
  if (line.words.empty()) return 0;
  if (const std::string existing = ExistingPath(line.words[0]); !existing.empty()) line.words[0] = existing;
  if (!line.interpreted && !IsExecutable(line.words[0])) return 0;
  int channel[2];
  if (pipe(channel) != 0) return 0;
  const pid_t child = fork();
  if (child < 0) {
    close(channel[0]);
    close(channel[1]);
    return 0;
  }
  if (child == 0) {
    close(channel[0]);
    dup2(channel[1], STDOUT_FILENO);
    close(channel[1]);
    if (const int nothing = open("/dev/null", O_RDONLY); nothing >= 0) {
      dup2(nothing, STDIN_FILENO);
      close(nothing);
    }
    if (!line.error_file.empty()) {
      const int errors = open(line.error_file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
      if (errors < 0) _exit(126);
      dup2(errors, STDERR_FILENO);
      close(errors);
    }
    Become(line.words);
  }
  close(channel[1]);
  Watch(child, channel[0], watch);
  close(channel[0]);
  WaitForEnd(child);
  return 1;
}

void StartProcess(const std::string& command) {
  CommandLine line = TakeApart(command);
  if (line.words.empty() || !IsExecutable(line.words[0])) throw RunTimeError(kErrFileNotFound);
  // The middle process ends at once, so that nobody has to wait for the program. It says through the channel
  // whether the program could be started: the channel closes by itself when it was.
  int channel[2];
  if (pipe(channel) != 0) throw RunTimeError(kErrOutOfMemory);
  fcntl(channel[1], F_SETFD, FD_CLOEXEC);
  const pid_t child = fork();
  if (child < 0) {
    close(channel[0]);
    close(channel[1]);
    throw RunTimeError(kErrOutOfMemory);
  }
  if (child == 0) {
    close(channel[0]);
    if (fork() != 0) _exit(0);
    setsid();
    if (const int nothing = open("/dev/null", O_RDWR); nothing >= 0) {
      dup2(nothing, STDIN_FILENO);
      dup2(nothing, STDOUT_FILENO);
    }
    auto arguments = Arguments(line.words);
    execvp(arguments[0], arguments.data());
    [[maybe_unused]] const auto written = write(channel[1], "!", 1);
    _exit(127);
  }
  close(channel[1]);
  char failed = 0;
  const auto got = read(channel[0], &failed, 1);
  close(channel[0]);
  WaitForEnd(child);
  if (got > 0) throw RunTimeError(kErrFileNotFound);
}

int OpenWithSystem(const std::string& path) {
  try {
    if (path.find(' ') != std::string::npos) return 31;  // the command line below cannot take it
    StartProcess("xdg-open " + path);
    return 33;
  } catch (const RunTimeError&) {
    return 31;
  }
}

std::string ExecutableFolder() {
  std::string path(4096, '\0');
  const auto length = readlink("/proc/self/exe", path.data(), path.size());
  if (length <= 0) return CurrentFolder();
  path.resize(static_cast<std::size_t>(length));
  return path.substr(0, LastSeparator(path));
}

}  // namespace tarnvik

#endif
