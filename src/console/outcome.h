// What comes of a command: the one result line that ends it.
#pragma once

#include <string>

#include "console/json_text.h"

namespace tarnvik {

struct Outcome {
  const char* key;    // "ok", "value", "refused", "error"
  std::string value;  // JSON
};

inline Outcome Ok() { return {"ok", JsonFlag(true)}; }
inline Outcome Value(std::string json) { return {"value", std::move(json)}; }

// Ends a command where something is found to be wrong: the command itself (error), or the user could not do
// it (refused). Nothing has been done then.
struct CommandStopped {
  Outcome outcome;
};
[[noreturn]] inline void StopWithError(const std::string& text) {
  throw CommandStopped{{"error", JsonText(text)}};
}
[[noreturn]] inline void Refuse(const std::string& text) {
  throw CommandStopped{{"refused", JsonText(text)}};
}

}  // namespace tarnvik
