#include "console/json_text.h"

#include "platform/encoding.h"

namespace tarnvik {

namespace {

void AppendCharacter(std::string& json, char c) {
  static const char* digits = "0123456789abcdef";
  switch (c) {
    case '"':
      json += "\\\"";
      return;
    case '\\':
      json += "\\\\";
      return;
    case '\n':
      json += "\\n";
      return;
    case '\r':
      json += "\\r";
      return;
    case '\t':
      json += "\\t";
      return;
    default:
      break;
  }
  if (static_cast<unsigned char>(c) >= ' ') {
    json += c;
  } else {
    json += "\\u00";
    json += digits[c >> 4];
    json += digits[c & 15];
  }
}

}  // namespace

std::string JsonText(std::string_view bytes) {
  const std::string text = ToUtf8(bytes);
  std::string json = "\"";
  json.reserve(text.size() + 2);
  for (const char c : text) AppendCharacter(json, c);
  json += '"';
  return json;
}

std::string JsonObject(std::initializer_list<JsonMember> members) {
  std::string json;
  for (const JsonMember& member : members) {
    json += json.empty() ? '{' : ',';
    json += JsonText(member.key);
    json += ':';
    json += member.value;
  }
  json += json.empty() ? "{}" : "}";
  return json;
}

}  // namespace tarnvik
