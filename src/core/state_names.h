// The case state by name, for whoever asks from outside: the console, the tests.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace tarnvik {

struct StateWord {
  const char* name;
  std::int16_t* value;
};
struct StateText {
  const char* name;
  std::string* value;
};

// Every single number and text of the case state. The arrays (SurvTitle and the like) are not among them.
std::span<const StateWord> StateWords();
std::span<const StateText> StateTexts();

}  // namespace tarnvik
