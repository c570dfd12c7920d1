// Processes on Windows.
#ifdef _WIN32

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <shellapi.h>  // wants what windows.h declares

#include "platform/paths.h"
#include "platform/process.h"
#include "platform/runtime_error.h"

namespace tarnvik {

std::int32_t RunConsoleProcess(const std::string& command, OutputSink sink) {
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
    char piece[4096];
    DWORD got = 0;
    while (ReadFile(out_read, piece, sizeof piece, &got, nullptr) && got > 0) {
      if (sink) sink(std::string_view(piece, got));
    }
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
