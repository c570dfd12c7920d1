#include "platform/host.h"

#include <stdexcept>

namespace tarnvik {

namespace {

Host* the_host = nullptr;
Pointer mouse_pointer = Pointer::Default;

}  // namespace

Host& TheHost() {
  if (!the_host) throw std::logic_error("no host");
  return *the_host;
}

void SetHost(Host* host) { the_host = host; }

Answer ShowMessage(const std::string& text, Icon icon, Buttons buttons, Answer default_answer) {
  return TheHost().ShowMessage(text, icon, buttons, default_answer);
}

void SetMousePointer(Pointer pointer) {
  mouse_pointer = pointer;
  TheHost().SetPointer(pointer);
}

Pointer MousePointer() { return mouse_pointer; }

}  // namespace tarnvik
