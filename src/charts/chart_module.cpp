// The renderer as a module, for a program that loads the windowing library only when a picture is asked for.
#include <new>

#include "charts/chart_picture.h"
#include "platform/runtime_error.h"

#ifdef _WIN32
#define TARNVIK_EXPORTED __declspec(dllexport)
#else
#define TARNVIK_EXPORTED __attribute__((visibility("default")))
#endif

// As WriteChartPicture; 0, or the number of the run-time error: exceptions stay on their side.
extern "C" TARNVIK_EXPORTED int TarnvikWriteChartPicture(const tarnvik::Chart* chart,
                                                         const char* path) noexcept {
  try {
    tarnvik::WriteChartPicture(*chart, path);
    return 0;
  } catch (const tarnvik::RunTimeError& error) {
    return error.Number;
  } catch (const std::bad_alloc&) {
    return tarnvik::kErrOutOfMemory;
  } catch (...) {
    return tarnvik::kErrDeviceIo;
  }
}
