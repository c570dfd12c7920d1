#include "console/renderer.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include "platform/paths.h"
#include "platform/process.h"
#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

using WritePicture = int (*)(const Chart* chart, const char* path);
constexpr const char* kEntry = "TarnvikWriteChartPicture";

[[noreturn]] void FailToLoad(const std::string& why) {
  throw RunTimeError(kErrFileNotFound, "The renderer of charts cannot be loaded: " + why);
}

#ifdef _WIN32
WritePicture LoadRenderer() {
  const std::string path = JoinPath(ExecutableFolder(), "tarnvik-renderer.dll");
  const HMODULE module = LoadLibraryA(path.c_str());
  const auto entry = module ? reinterpret_cast<void*>(GetProcAddress(module, kEntry)) : nullptr;
  if (!entry) FailToLoad(path);
  return reinterpret_cast<WritePicture>(entry);
}
#else
// The module stays loaded until the process ends.
WritePicture LoadRenderer() {
  const std::string path = JoinPath(ExecutableFolder(), "tarnvik-renderer.so");
  void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* const entry = module ? dlsym(module, kEntry) : nullptr;
  if (!entry) FailToLoad(dlerror());
  return reinterpret_cast<WritePicture>(entry);
}
#endif

}  // namespace

void DrawWithRenderer(const Chart& chart, const std::string& path) {
  static const WritePicture write = LoadRenderer();
  if (const int error = write(&chart, path.c_str()); error != 0) throw RunTimeError(error);
}

}  // namespace tarnvik
