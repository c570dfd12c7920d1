// Processes on Windows.
#ifdef _WIN32

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <shellapi.h>  // wants what windows.h declares

#include "platform/paths.h"
#include "platform/process.h"
#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

// Passes on what the process writes until it closes its output or is ended.
void Watch(HANDLE process, HANDLE from, const ProcessWatch& watch) {
  constexpr DWORD kTenthOfSecond = 100;
  char piece[4096];
  while (true) {
    if (watch.stop && watch.stop()) {
      TerminateProcess(process, 1);
      return;
    }
    DWORD waiting = 0;
    if (!PeekNamedPipe(from, nullptr, 0, nullptr, &waiting, nullptr)) return;
    if (waiting == 0) {
      // A process that has ended may have written its last words between the two looks.
      if (WaitForSingleObject(process, kTenthOfSecond) != WAIT_OBJECT_0) continue;
      if (!PeekNamedPipe(from, nullptr, 0, nullptr, &waiting, nullptr) || waiting == 0) return;
    }
    DWORD got = 0;
    if (!ReadFile(from, piece, sizeof piece, &got, nullptr) || got == 0) return;
    if (watch.output) watch.output(std::string_view(piece, got));
  }
}

}  // namespace

std::int32_t RunConsoleProcess(const std::string& command, const ProcessWatch& watch) {
  SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
  HANDLE out_read = nullptr;
  HANDLE out_write = nullptr;
  if (!CreatePipe(&out_read, &out_write, &inherit, 0)) return 0;
  SetHandleInformation(out_read, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOA start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = out_write;
  start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION process{};
  std::string line = command;
  const BOOL created = CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                                      nullptr, &start, &process);
  CloseHandle(out_write);
  if (created) {
    Watch(process.hProcess, out_read, watch);
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
  }
  CloseHandle(out_read);
  return created ? 1 : 0;
}

void StartProcess(const std::string& command) {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  std::string line = command;
  if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process)) {
    throw RunTimeError(kErrFileNotFound);
  }
  CloseHandle(process.hProcess);
  CloseHandle(process.hThread);
}

int OpenWithSystem(const std::string& path) {
  const auto result = ShellExecuteA(nullptr, "open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  const auto code = reinterpret_cast<std::intptr_t>(result);
  return code > 32 ? 33 : static_cast<int>(code);
}

std::string ExecutableFolder() {
  char path[MAX_PATH];
  const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
  const std::string text(path, length);
  return text.substr(0, LastSeparator(text));
}

}  // namespace tarnvik

#endif
