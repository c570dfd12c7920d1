// JSON out of the program's texts and values.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tarnvik {

// A text in quotes. Texts of the program are bytes: where they are not valid UTF-8, each stray byte stands
// for its character of Windows-1252, so that every text is valid JSON.
std::string JsonText(std::string_view bytes);
inline std::string JsonNumber(int value) { return std::to_string(value); }
inline std::string JsonFlag(bool value) { return value ? "true" : "false"; }

struct JsonMember {
  const char* key;
  std::string value;  // JSON
};
std::string JsonObject(std::initializer_list<JsonMember> members);

// The array of item(first) to item(last), each of them JSON; empty when last is below first.
template <class F>
std::string JsonArray(int first, int last, F&& item) {
  std::string json = "[";
  for (int i = first; i <= last; ++i) {
    if (i > first) json += ',';
    json += item(i);
  }
  json += ']';
  return json;
}

}  // namespace tarnvik
